#include "place.h"

namespace tool
{
namespace
{

// An open array or inline table.
struct Enclosing
{
    std::size_t opening; // cppcheck-suppress unusedStructMember
    bool isTable;        // cppcheck-suppress unusedStructMember
    unsigned elements;   // cppcheck-suppress unusedStructMember
};

// Follows a statement token by token.
class Follower
{
public:
    void take(TokenType type, std::size_t at)
    {
        if (type == TokenType::newline)
        {
            newline_ = breaks_ == 0 ? at : newline_;
            ++breaks_;
            return;
        }
        breaks_ = 0;
        switch (due_)
        {
        case Due::statement:
            due_ = type == TokenType::openBracket ? Due::header : Due::equals;
            break;
        case Due::header:
            isOfArray_ = isOfArray_ || type == TokenType::openBracket;
            due_ = type == TokenType::openBracket ? Due::header : Due::headerEnd;
            break;
        case Due::headerEnd:
            takeAfterHeader(type);
            break;
        case Due::equals:
        case Due::keyPart:
            takeAfterKey(type);
            break;
        case Due::value:
        case Due::firstElement:
        case Due::element:
            takeValue(type, at);
            break;
        case Due::arrayEnd:
        case Due::tableEnd:
            takeAfterValue(type);
            break;
        case Due::firstPair:
        case Due::pair:
            takeInTable(type);
            break;
        case Due::lineEnd:
            break;
        }
    }

    Place place() const
    {
        Place place;
        place.due = due_;
        place.isOpen = !enclosing_.empty();
        if (place.isOpen)
        {
            place.opening = enclosing_.back().opening;
            place.isInTable = enclosing_.back().isTable;
            place.elements = enclosing_.back().elements;
        }
        place.breaks = breaks_;
        place.newline = newline_;
        place.isOfArray = isOfArray_;
        return place;
    }

private:
    void takeAfterHeader(TokenType type)
    {
        if (type == TokenType::dot)
        {
            due_ = Due::header;
        }
        else if (type == TokenType::closeBracket)
        {
            due_ = isOfArray_ && !isHalfClosed_ ? Due::headerEnd : Due::lineEnd;
            isHalfClosed_ = true;
        }
    }

    void takeAfterKey(TokenType type)
    {
        if (type == TokenType::dot)
        {
            due_ = Due::keyPart;
        }
        else if (type == TokenType::equals)
        {
            due_ = Due::value;
        }
        else if (!enclosing_.empty() && type == TokenType::closeBrace)
        {
            leave();
        }
        else
        {
            due_ = Due::equals;
        }
    }

    void takeValue(TokenType type, std::size_t at)
    {
        switch (type)
        {
        case TokenType::openBracket:
            enclosing_.push_back({at, false, 0});
            due_ = Due::firstElement;
            break;
        case TokenType::openBrace:
            enclosing_.push_back({at, true, 0});
            due_ = Due::firstPair;
            break;
        case TokenType::closeBracket:
        case TokenType::closeBrace:
            leave();
            break;
        case TokenType::comma:
            due_ = afterComma();
            break;
        default:
            endValue();
        }
    }

    void takeAfterValue(TokenType type)
    {
        if (type == TokenType::comma)
        {
            due_ = afterComma();
        }
        else if (type == TokenType::closeBracket || type == TokenType::closeBrace)
        {
            leave();
        }
    }

    void takeInTable(TokenType type)
    {
        if (type == TokenType::closeBrace)
        {
            leave();
        }
        else if (type == TokenType::comma)
        {
            due_ = Due::pair;
        }
        else
        {
            due_ = Due::equals;
        }
    }

    Due afterComma() const
    {
        return enclosing_.empty()          ? Due::lineEnd
               : enclosing_.back().isTable ? Due::pair
                                           : Due::element;
    }

    void endValue()
    {
        if (enclosing_.empty())
        {
            due_ = Due::lineEnd;
            return;
        }
        ++enclosing_.back().elements;
        due_ = enclosing_.back().isTable ? Due::tableEnd : Due::arrayEnd;
    }

    void leave()
    {
        if (!enclosing_.empty())
        {
            enclosing_.pop_back();
        }
        endValue();
    }

    Due due_ = Due::statement;
    std::vector<Enclosing> enclosing_;
    unsigned breaks_ = 0;
    std::size_t newline_ = 0;
    bool isOfArray_ = false;
    bool isHalfClosed_ = false;
};

} // namespace

Place placeOf(const std::vector<DocumentToken>& tokens, std::size_t begin, std::size_t at)
{
    Follower follower;
    for (std::size_t token = begin; token < at; ++token)
    {
        follower.take(tokens[token].type, token);
    }
    return follower.place();
}

} // namespace tool
