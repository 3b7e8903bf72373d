#include "statements.h"

#include <algorithm>

namespace tool
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

bool closes(TokenType closing, TokenType opening)
{
    return opening == TokenType::openBracket ? closing == TokenType::closeBracket
                                             : closing == TokenType::closeBrace;
}

} // namespace

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
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < tokens.size(); ++at)
    {
        const TokenType type = tokens[at].type;
        if (opens(type))
        {
            open.push_back(at);
        }
        else if (!open.empty() && closes(type, tokens[open.back()].type))
        {
            closings_[open.back()] = at;
            open.pop_back();
        }
        else if (!open.empty() && type == TokenType::newline &&
                 (looksLikeHeader(tokens, at + 1) ||
                  (tokens[open.back()].type == TokenType::openBracket &&
                   looksLikePair(tokens, at + 1))))
        {
            // There is no such line in an array.
            open.clear();
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
            begins = !isOpen || looksLikePair(tokens, at + 1) || looksLikeHeader(tokens, at + 1);
        }
    }
}

} // namespace tool
