#include "token_words.h"

#include "characters.h"
#include "kind_name.h"

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
    if (token.type == TokenType::bareKey)
    {
        return "the word " + quoted(text);
    }
    std::string name(kindName(token.type));
    if (isLineEnd(token.type))
    {
        return "the " + name;
    }
    if (isString(token.type) || isValueLikeKey(token.type))
    {
        return "the " + name + ' ' + shortened(text);
    }
    return name;
}

std::string quoted(std::string_view text)
{
    return '\'' + shortened(text) + '\'';
}

} // namespace vorn::parsers::toml::diagnosis
