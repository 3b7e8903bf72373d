#include "token_words.h"

#include "characters.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t maxShown = 30;

// The start of the first line.
std::string shortened(std::string_view text)
{
    text = text.substr(0, text.find('\n'));
    std::string result;
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count)
    {
        if (count == maxShown)
        {
            return result + "...";
        }
        const Character character = characterAt(text, at);
        result += shown(text, character, at).text;
        at += character.length;
    }
    return result;
}

} // namespace

// NOLINTNEXTLINE(readability-function-size): a table
std::string_view kindName(TokenType type)
{
    switch (type)
    {
    case TokenType::bareKey:
        return "bare key";
    case TokenType::basicString:
        return "string";
    case TokenType::literalString:
        return "literal string";
    case TokenType::mlBasicString:
        return "multi-line string";
    case TokenType::mlLiteralString:
        return "multi-line literal string";
    case TokenType::decInt:
        return "integer";
    case TokenType::hexInt:
        return "hexadecimal integer";
    case TokenType::octInt:
        return "octal integer";
    case TokenType::binInt:
        return "binary integer";
    case TokenType::floating:
    case TokenType::inf:
    case TokenType::nan:
        return "float";
    case TokenType::boolean:
        return "boolean";
    case TokenType::offsetDateTime:
        return "offset date-time";
    case TokenType::localDateTime:
        return "local date-time";
    case TokenType::localDate:
        return "date";
    case TokenType::localTime:
        return "time";
    case TokenType::newline:
        return "end of the line";
    case TokenType::comma:
        return "','";
    case TokenType::dot:
        return "'.'";
    case TokenType::equals:
        return "'='";
    case TokenType::openBracket:
        return "'['";
    case TokenType::closeBracket:
        return "']'";
    case TokenType::openBrace:
        return "'{'";
    case TokenType::closeBrace:
        return "'}'";
    default:
        return "end of the file";
    }
}

bool isValueLikeKey(TokenType type)
{
    switch (type)
    {
    case TokenType::decInt:
    case TokenType::hexInt:
    case TokenType::octInt:
    case TokenType::binInt:
    case TokenType::floating:
    case TokenType::inf:
    case TokenType::nan:
    case TokenType::boolean:
    case TokenType::offsetDateTime:
    case TokenType::localDateTime:
    case TokenType::localDate:
    case TokenType::localTime:
        return true;
    default:
        return false;
    }
}

bool isLineEnd(TokenType type)
{
    return type == TokenType::newline || type == TokenType::endOfInput;
}

bool isString(TokenType type)
{
    return type == TokenType::basicString || type == TokenType::literalString ||
           type == TokenType::mlBasicString || type == TokenType::mlLiteralString;
}

std::string described(const DocumentToken& token, std::string_view text)
{
    const std::string name(kindName(token.type));
    switch (token.type)
    {
    case TokenType::bareKey:
        return "the word " + quoted(text);
    case TokenType::newline:
    case TokenType::endOfInput:
        return "the " + name;
    case TokenType::basicString:
    case TokenType::literalString:
    case TokenType::mlBasicString:
    case TokenType::mlLiteralString:
        return "the " + name + ' ' + shortened(text);
    default:
        return isValueLikeKey(token.type) ? "the " + name + ' ' + shortened(text) : name;
    }
}

std::string quoted(std::string_view text)
{
    return '\'' + shortened(text) + '\'';
}

} // namespace vorn::parsers::toml::diagnosis
