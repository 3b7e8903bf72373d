#include "kind_name.h"

namespace vorn::parsers::toml::diagnosis
{

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

} // namespace vorn::parsers::toml::diagnosis
