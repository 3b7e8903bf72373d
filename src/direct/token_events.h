// What tokens are in their places.
#pragma once

#include <string_view>

#include "event.h"
#include "scan/token_type.h"

namespace vorn::parsers::toml
{

// The event of a key or a part of one; none for other tokens.
constexpr Event keyEvent(TokenType type)
{
    switch (type)
    {
    case TokenType::bareKey:
        return Event::visitBareKey;
    case TokenType::basicString:
    case TokenType::literalString:
        return Event::visitQuotedKey;
    default:
        return Event::none;
    }
}

// The event of a scalar, or of the bracket that a value starts with; none for other tokens.
constexpr Event valueEvent(TokenType type)
{
    switch (type)
    {
    case TokenType::openBracket:
        return Event::beginArray;
    case TokenType::openBrace:
        return Event::beginInlineTable;
    case TokenType::basicString:
        return Event::visitBasicString;
    case TokenType::mlBasicString:
        return Event::visitMultilineBasicString;
    case TokenType::literalString:
        return Event::visitLiteralString;
    case TokenType::mlLiteralString:
        return Event::visitMultilineLiteralString;
    case TokenType::decInt:
    case TokenType::hexInt:
    case TokenType::octInt:
    case TokenType::binInt:
        return Event::visitInteger;
    case TokenType::floating:
    case TokenType::inf:
    case TokenType::nan:
        return Event::visitFloat;
    case TokenType::boolean:
        return Event::visitBoolean;
    case TokenType::offsetDateTime:
        return Event::visitOffsetDateTime;
    case TokenType::localDateTime:
        return Event::visitLocalDateTime;
    case TokenType::localDate:
        return Event::visitLocalDate;
    case TokenType::localTime:
        return Event::visitLocalTime;
    default:
        return Event::none;
    }
}

// The event of a token that has been taken, and its text.
struct TakenText
{
    Event event; // none: the token does not fit its place, or there is none
    std::string_view text;
};

// Take the next token from a cursor, where it is a part of a key, or the start of a value.
template <typename Cursor>
TakenText takeKeyPart(Cursor& tokens)
{
    const auto token = tokens.take();
    return {keyEvent(token.type), token.text};
}
template <typename Cursor>
TakenText takeValue(Cursor& tokens)
{
    const auto token = tokens.take();
    return {valueEvent(token.type), token.text};
}

// Takes a bare key and the sign after it, if a value comes next and that is easy to see.
template <typename Cursor>
bool takePlainKey(Cursor& /*tokens*/, std::string_view& /*key*/)
{
    return false;
}

// Takes a comma if a value comes after it on the same line, and that is easy to see.
template <typename Cursor>
bool takeCommaBeforeValue(Cursor& /*tokens*/)
{
    return false;
}

} // namespace vorn::parsers::toml
