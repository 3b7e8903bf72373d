#include "statements.h"

#include <algorithm>

namespace vorn::parsers::toml::diagnosis
{
namespace
{

using Tokens = std::vector<DocumentToken>;

TokenType typeAt(const Tokens& tokens, std::size_t at)
{
    return at < tokens.size() ? tokens[at].type : TokenType::endOfInput;
}

bool isKey(TokenType type)
{
    return type == TokenType::bareKey || type == TokenType::basicString ||
           type == TokenType::literalString;
}

// The first token after a key of any number of parts; `begin` if there is no key.
std::size_t afterKey(const Tokens& tokens, std::size_t begin)
{
    std::size_t at = begin;
    while (isKey(typeAt(tokens, at)))
    {
        ++at;
        if (typeAt(tokens, at) != TokenType::dot)
        {
            return at;
        }
        ++at;
    }
    return begin;
}

bool looksLikePair(const Tokens& tokens, std::size_t begin)
{
    const std::size_t at = afterKey(tokens, begin);
    return at != begin && typeAt(tokens, at) == TokenType::equals;
}

// A bare key is not an element of an array; a string in brackets may be one.
bool looksLikeHeader(const Tokens& tokens, std::size_t begin)
{
    std::size_t at = begin;
    while (at < begin + 2 && typeAt(tokens, at) == TokenType::openBracket)
    {
        ++at;
    }
    return at != begin && typeAt(tokens, at) == TokenType::bareKey &&
           typeAt(tokens, afterKey(tokens, at)) == TokenType::closeBracket;
}

bool opens(TokenType type)
{
    return type == TokenType::openBracket || type == TokenType::openBrace;
}

} // namespace

OpenBrackets::Change OpenBrackets::take(const Tokens& tokens, std::size_t at)
{
    const TokenType type = tokens[at].type;
    const bool startsLine = startsLine_;
    startsLine_ = open_.empty() && type == TokenType::newline;
    if (opens(type))
    {
        isHeader_ = open_.empty() ? startsLine && type == TokenType::openBracket : isHeader_;
        open_.push_back(type == TokenType::openBracket);
        depth_ = std::max(depth_, open_.size());
        return Change::opened;
    }
    if (open_.empty())
    {
        return Change::none;
    }
    if (type == (open_.back() ? TokenType::closeBracket : TokenType::closeBrace))
    {
        open_.pop_back();
        return Change::closed;
    }
    if (type == TokenType::newline && isAbandoned(tokens, at + 1))
    {
        open_.clear();
        startsLine_ = true;
        return Change::abandoned;
    }
    return Change::none;
}

// There is no such line in an array, and a header has one line only.
bool OpenBrackets::isAbandoned(const Tokens& tokens, std::size_t next) const
{
    return looksLikeHeader(tokens, next) || (open_.back() && looksLikePair(tokens, next)) ||
           (isHeader_ && typeAt(tokens, next) == TokenType::openBracket);
}

bool reachesStatement(const Tokens& tokens, std::size_t begin)
{
    std::size_t at = begin;
    while (at < begin + 2 && typeAt(tokens, at) == TokenType::openBracket)
    {
        ++at;
    }
    while (isKey(typeAt(tokens, at)) || typeAt(tokens, at) == TokenType::dot)
    {
        ++at;
    }
    return at < tokens.size();
}

Statements::Statements(const Tokens& tokens) : closings_(tokens.size())
{
    findClosings(tokens);
    findBegins(tokens);
}

std::size_t Statements::beginOf(std::size_t token) const
{
    const auto next = std::upper_bound(begins_.begin(), begins_.end(), token);
    return next == begins_.begin() ? 0 : *(next - 1);
}

std::size_t Statements::nextAfter(std::size_t token) const
{
    const auto next = std::upper_bound(begins_.begin(), begins_.end(), token);
    return next == begins_.end() ? closings_.size() : *next;
}

void Statements::findClosings(const Tokens& tokens)
{
    OpenBrackets brackets;
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < tokens.size(); ++at)
    {
        switch (brackets.take(tokens, at))
        {
        case OpenBrackets::Change::opened:
            open.push_back(at);
            break;
        case OpenBrackets::Change::closed:
            closings_[open.back()] = at;
            open.pop_back();
            break;
        case OpenBrackets::Change::abandoned:
            open.clear();
            break;
        case OpenBrackets::Change::none:
            break;
        }
    }
}

void Statements::findBegins(const Tokens& tokens)
{
    std::size_t enclosed = 0; // up to the last closing bracket
    bool isOpen = false;      // a bracket that is never closed
    bool begins = true;
    for (std::size_t at = 0; at < tokens.size(); ++at)
    {
        if (begins)
        {
            begins_.push_back(at);
            isOpen = false;
        }
        begins = false;
        if (opens(tokens[at].type))
        {
            enclosed = std::max(enclosed, closings_[at]);
            isOpen = isOpen || !isClosed(at);
        }
        else if (tokens[at].type == TokenType::newline && at >= enclosed)
        {
            const bool isHeader = typeAt(tokens, begins_.back()) == TokenType::openBracket;
            begins = !isOpen || looksLikePair(tokens, at + 1) || looksLikeHeader(tokens, at + 1) ||
                     (isHeader && typeAt(tokens, at + 1) == TokenType::openBracket);
        }
    }
}

} // namespace vorn::parsers::toml::diagnosis
