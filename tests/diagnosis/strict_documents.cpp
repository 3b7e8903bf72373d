#include "strict_documents.h"

#include <algorithm>
#include <string_view>

namespace test
{

using namespace std::string_view_literals;

std::string StrictDocuments::next()
{
    text_.clear();
    isOfNamesOnly_ = random_.oneIn(2);
    if (random_.oneIn(64))
    {
        add("\xEF\xBB\xBF");
    }
    if (!isOfNamesOnly_ && random_.oneIn(6))
    {
        soup();
    }
    else
    {
        for (std::size_t count = random_.between(1, 7); count > 0; --count)
        {
            statement();
        }
    }
    if (!isOfNamesOnly_ && random_.oneIn(8))
    {
        damage();
    }
    return text_;
}

void StrictDocuments::statement()
{
    if (random_.oneIn(3))
    {
        header();
    }
    else
    {
        pair(0);
    }
    if (!isOfNamesOnly_ && random_.oneIn(32))
    {
        constexpr std::string_view comments[] = {"# c", "\t#\x01", "#\x7F", "#\r\r", "# \xC3\xA9"};
        addOne(comments);
    }
    constexpr std::string_view lineBreaks[] = {"\n", "\n", "\n", "\r\n", "\n\n"};
    addOne(lineBreaks);
}

void StrictDocuments::header()
{
    const bool isOfArray = random_.oneIn(2);
    const auto bracket = [&](std::string_view one)
    {
        add(one);
        if (isOfArray)
        {
            if (!isOfNamesOnly_ && random_.oneIn(24))
            {
                add(" ");
            }
            add(one);
        }
    };
    bracket("[");
    blanks();
    if (random_.oneIn(3))
    {
        // Tables in the same one meet in dotted keys below its header.
        add("a.");
    }
    key();
    blanks();
    bracket("]");
}

void StrictDocuments::pair(unsigned depth)
{
    key();
    blanks();
    add("=");
    blanks();
    value(depth);
}

void StrictDocuments::key()
{
    keyPart();
    while (random_.oneIn(3))
    {
        blanks();
        add(".");
        blanks();
        keyPart();
    }
}

void StrictDocuments::keyPart()
{
    constexpr std::string_view plain[] = {"a", "b", "c"};
    constexpr std::string_view others[] = {"\"a\"",
                                           "'a'",
                                           "\"\\u0061\"",
                                           "'b'",
                                           "\"\\U00000062\"",
                                           "\"\\t\"",
                                           "\"\t\"",
                                           "''",
                                           "\"\"",
                                           "\"\\ud800\"",
                                           "\"\\'\"",
                                           "\"'\"",
                                           "\"\\u00e9\"",
                                           "'\xC3\xA9'",
                                           "\"\\\\\"",
                                           "'\\'",
                                           "\"\\ua000\"",
                                           "'\xEA\x80\x80'"};
    if (!isOfNamesOnly_ && random_.oneIn(12))
    {
        addOne(others);
    }
    else
    {
        addOne(plain);
    }
}

void StrictDocuments::value(unsigned depth)
{
    switch (random_.between(isOfNamesOnly_ ? 3 : 0, depth < 3 ? 15 : 7))
    {
    case 0:
        dateTime();
        break;
    case 1:
        string();
        break;
    case 2:
    {
        constexpr std::string_view integers[] = {"9223372036854775807",
                                                 "9223372036854775808",
                                                 "-9223372036854775808",
                                                 "-9223372036854775809",
                                                 "+9223372036854775808",
                                                 "0x7FFF_ffff_FFFF_FFFF",
                                                 "0x8000000000000000",
                                                 "0o777777777777777777777",
                                                 "0o1000000000000000000000",
                                                 "0b0",
                                                 "18446744073709551616",
                                                 "0xFFFFFFFFFFFFFFFF0",
                                                 "-0",
                                                 "1e400",
                                                 "1_0.5E-0_1",
                                                 "-nan",
                                                 "+inf",
                                                 "false"};
        addOne(integers);
        break;
    }
    case 8:
    case 9:
    case 10:
        array(depth + 1);
        break;
    case 11:
    case 12:
    case 13:
        inlineTable(depth + 1);
        break;
    default:
        add("1");
    }
}

void StrictDocuments::array(unsigned depth)
{
    add("[");
    for (std::size_t count = random_.between(1, 3); count > 0; --count)
    {
        value(depth);
        add(count > 1 ? "," : "");
    }
    add(random_.oneIn(8) ? ",]" : "]");
}

void StrictDocuments::inlineTable(unsigned depth)
{
    add("{");
    for (std::size_t count = random_.between(1, 3); count > 0; --count)
    {
        pair(depth);
        add(count > 1 ? "," : "");
    }
    add("}");
}

void StrictDocuments::string()
{
    constexpr std::string_view quotes[] = {"\"", "\"\"\"", "'", "'''"};
    constexpr std::string_view contents[] = {"x",
                                             "\\\\",
                                             "\\\"",
                                             "\\'",
                                             "\\n",
                                             "\\u00e9",
                                             "\\ud7ff",
                                             "\\ud800",
                                             "\\uDFFF",
                                             "\\ue000",
                                             "\\U0000D800",
                                             "\\U0010ffff",
                                             "\\U00110000",
                                             "\\UFFFFFFFF",
                                             "\xC3\xA9",
                                             "\xEF\xBF\xBF",
                                             "\x01",
                                             "\x7F",
                                             "\t",
                                             "\r",
                                             "\0"sv,
                                             "\xC2\x80",
                                             "\xC0\x80",
                                             "\xED\xA0\x80",
                                             "\xF0\x9F\x98\x80",
                                             "\xFF",
                                             "\n",
                                             "\\\n ",
                                             "#",
                                             "\xEF\xBB\xBF"};
    const std::string_view quote = random_.oneOf(quotes);
    add(quote);
    for (std::size_t count = random_.below(3); count > 0; --count)
    {
        addOne(contents);
    }
    add(quote);
}

void StrictDocuments::dateTime()
{
    constexpr std::string_view years[] = {"2024", "2023", "1900", "2000", "0000", "9999", "0001"};
    constexpr std::string_view months[] = {"02", "02", "01", "04", "12", "00", "13"};
    constexpr std::string_view days[] = {"01", "28", "29", "30", "31", "32", "00"};
    constexpr std::string_view delimiters[] = {"T", "t", " "};
    constexpr std::string_view hours[] = {"00", "07", "23", "24"};
    constexpr std::string_view minutes[] = {"00", "30", "59", "60"};
    constexpr std::string_view seconds[] = {"00", "59", "60", "61"};
    constexpr std::string_view fractions[] = {"", "", ".5", ".1234567890"};
    constexpr std::string_view offsets[] = {"",       "Z",      "+01:00", "-23:59",
                                            "+24:00", "-00:60", "-00:00"};
    const bool hasDate = !random_.oneIn(3);
    if (hasDate)
    {
        addOne(years);
        add("-");
        addOne(months);
        add("-");
        addOne(days);
        if (random_.oneIn(3))
        {
            return;
        }
        addOne(delimiters);
    }
    addOne(hours);
    add(":");
    addOne(minutes);
    add(":");
    addOne(seconds);
    addOne(fractions);
    if (hasDate)
    {
        addOne(offsets);
    }
}

// Anything in a row: most of it cannot be read.
void StrictDocuments::soup()
{
    constexpr std::string_view pieces[] = {
        "a",  "b",     ".",       "=",     "[",  "]",  "{",      "}",   ",",          "\n",
        "\n", "=1\n",  " ",       "1",     "\"", "'",  "#",      "]",   "\r\n",       "\"a\"",
        "a=", "[a]\n", "[[a]]\n", "a=1\n", "\\", "\t", "\"\"\"", "'''", "1979-05-27", "07:32:00",
        "0",  "e",     "+",       "-",     "_",  "x",  "t",      "Z",   "true"};
    for (std::size_t count = random_.between(1, 14); count > 0; --count)
    {
        addOne(pieces);
    }
    add(random_.oneIn(2) ? "\n" : "=1\n");
}

// A byte somewhere.
void StrictDocuments::damage()
{
    const std::size_t at = random_.below(text_.size() + 1);
    const char byte = static_cast<char>(random_.below(256));
    if (random_.oneIn(2) || at == text_.size())
    {
        text_.insert(at, 1, byte);
    }
    else
    {
        text_[at] = byte;
    }
}

void StrictDocuments::blanks()
{
    if (random_.oneIn(16))
    {
        constexpr std::string_view some[] = {" ", "\t", "  "};
        addOne(some);
    }
}

} // namespace test
