#include "place.h"

namespace vorn::parsers::toml::diagnosis
{

void Follower::take(const DocumentToken& token)
{
    const TokenType type = token.type;
    if (type == TokenType::newline)
    {
        newline_ = breaks_ == 0 ? token : newline_;
        ++breaks_;
        return;
    }
    breaks_ = 0;
    switch (due_)
    {
    case Due::statement:
        begin_ = token.begin;
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
        takeValue(token);
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

Place Follower::place() const
{
    Place place;
    place.due = due_;
    place.begin = begin_;
    place.isOpen = !openings_.empty();
    if (place.isOpen)
    {
        place.opening = {isInTable() ? TokenType::openBrace : TokenType::openBracket,
                         openings_.back(), std::size_t{openings_.back()} + 1};
        place.isInTable = isInTable();
    }
    place.breaks = breaks_;
    place.newline = newline_;
    place.isOfArray = isOfArray_;
    return place;
}

void Follower::takeAfterHeader(TokenType type)
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

void Follower::takeAfterKey(TokenType type)
{
    if (type == TokenType::dot)
    {
        due_ = Due::keyPart;
    }
    else if (type == TokenType::equals)
    {
        due_ = Due::value;
    }
    else if (!openings_.empty() && type == TokenType::closeBrace)
    {
        leave();
    }
    else
    {
        due_ = Due::equals;
    }
}

void Follower::takeValue(const DocumentToken& token)
{
    switch (token.type)
    {
    case TokenType::openBracket:
        enter(token);
        due_ = Due::firstElement;
        break;
    case TokenType::openBrace:
        enter(token);
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

void Follower::takeAfterValue(TokenType type)
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

void Follower::takeInTable(TokenType type)
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

Due Follower::afterComma() const
{
    return openings_.empty() ? Due::lineEnd : isInTable() ? Due::pair : Due::element;
}

void Follower::endValue()
{
    if (openings_.empty())
    {
        due_ = Due::lineEnd;
        return;
    }
    due_ = isInTable() ? Due::tableEnd : Due::arrayEnd;
}

void Follower::enter(const DocumentToken& bracket)
{
    openings_.push_back(static_cast<std::uint32_t>(bracket.begin));
    braces_.push_back(bracket.type == TokenType::openBrace);
}

void Follower::leave()
{
    if (!openings_.empty())
    {
        openings_.pop_back();
        braces_.pop_back();
    }
    endValue();
}

} // namespace vorn::parsers::toml::diagnosis
