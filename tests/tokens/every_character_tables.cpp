// Every character in every place where it makes a difference.
#include "token_table.h"

#include <cstdint>

#include "support/utf8.h"

namespace test
{
namespace
{

constexpr std::uint32_t lastInClasses = 0xFFFF;

const std::string firstCharacters = "\t\n\r \"#'+,-.0123456789=ABCDEFGHIJKLMNOPQRSTUVWXYZ[]_"
                                    "abcdefghijklmnopqrstuvwxyz{}";

// Every character of the grammar's classes but the excluded ones.
std::string allBut(const std::string& excluded)
{
    std::string text;
    for (std::uint32_t point = 0; point <= lastInClasses; ++point)
    {
        if (point > 0x7F || excluded.find(static_cast<char>(point)) == std::string::npos)
        {
            text += utf8(point);
        }
    }
    return text;
}

// The scanner leaves them to the lexer for their surrogates.
Rows fullStrings()
{
    return {{{"rare BASIC_STRING", '"' + allBut("\n\"\\") + '"'}},
            {{"rare LITERAL_STRING", '\'' + allBut("\n'") + '\''}},
            {{"rare ML_BASIC_STRING", "\"\"\"" + allBut("\"\\") + "\"\"\""}},
            {{"rare ML_LITERAL_STRING", "'''" + allBut("'") + "'''"}},
            {{"rare COMMENT", '#' + allBut("\n")}, lineFeed, {"BARE_KEY", "end"}}};
}

std::string kindOf(char first)
{
    switch (first)
    {
    case ' ':
    case '\t':
        return "WS";
    case '\n':
        return "NL";
    case '#':
        return "COMMENT";
    case ',':
    case '.':
    case '=':
    case '[':
    case ']':
    case '{':
    case '}':
        return std::string("'") + first + '\'';
    default:
        return first >= '0' && first <= '9' ? "DEC_INT" : "BARE_KEY";
    }
}

// The characters that are a token alone; a plus sign, quotes and a carriage return need company.
Rows loneCharacters()
{
    Rows rows;
    for (const char first : firstCharacters)
    {
        if (first != '+' && first != '"' && first != '\'' && first != '\r')
        {
            rows.push_back({{kindOf(first), std::string(1, first)}});
        }
    }
    return rows;
}

// All others, a few hundred in a text: an error each.
Rows wrongCharacters()
{
    Rows rows(1);
    for (std::uint32_t point = 0; point <= 0x10FFFF; point += point < 0x11000 ? 1 : 0xFFF)
    {
        if (point > 0x7F || firstCharacters.find(static_cast<char>(point)) == std::string::npos)
        {
            const std::size_t before = rows.back().size();
            rows.back().push_back({"no token 1:" + std::to_string(before), utf8(point)});
        }
        // None starts with a byte order mark, which the runtime skips.
        if (point % 0x200 == 0x100)
        {
            rows.emplace_back();
        }
    }
    return rows;
}

} // namespace

TokenTables everyCharacterTables()
{
    return {
        {"Characters_ofStringsAndCommentsAreAllButTheirDelimiters", fullStrings()},
        {"Characters_areTokensAlone", loneCharacters()},
        {"Characters_thatStartNoTokenAreAnErrorEach", wrongCharacters()},
    };
}

} // namespace test
