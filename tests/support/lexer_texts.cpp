#include "lexer_texts.h"

#include <iterator>

namespace test
{
namespace
{

using namespace std::string_view_literals;

// What tokens, and what is nearly one, are made of.
constexpr std::string_view fragments[] = {"0"sv,
                                          "1"sv,
                                          "7"sv,
                                          "9"sv,
                                          "12"sv,
                                          "07"sv,
                                          "1979"sv,
                                          "0001"sv,
                                          "1979-05-27"sv,
                                          "07:32:00"sv,
                                          "T"sv,
                                          "t"sv,
                                          "Z"sv,
                                          "z"sv,
                                          ":"sv,
                                          "-"sv,
                                          "+"sv,
                                          "_"sv,
                                          "."sv,
                                          "e"sv,
                                          "E"sv,
                                          "0x"sv,
                                          "0o"sv,
                                          "0b"sv,
                                          "1F"sv,
                                          "01"sv,
                                          "inf"sv,
                                          "nan"sv,
                                          "true"sv,
                                          "false"sv,
                                          "tru"sv,
                                          "a"sv,
                                          "Z9"sv,
                                          " "sv,
                                          "\t"sv,
                                          "\n"sv,
                                          "\r"sv,
                                          "\r\n"sv,
                                          "#"sv,
                                          "# c"sv,
                                          "\""sv,
                                          "\"\""sv,
                                          "\"\"\""sv,
                                          "'"sv,
                                          "''"sv,
                                          "'''"sv,
                                          "\\"sv,
                                          "\\n"sv,
                                          "\\\""sv,
                                          "\\'"sv,
                                          "\\u00"sv,
                                          "\\u12Af"sv,
                                          "\\U0001F60"sv,
                                          "\\U0001F600"sv,
                                          "\\\n"sv,
                                          "\\\r\n"sv,
                                          "\\\r"sv,
                                          "\\ "sv,
                                          "\\q"sv,
                                          ","sv,
                                          "="sv,
                                          "["sv,
                                          "]"sv,
                                          "{"sv,
                                          "}"sv,
                                          "@"sv,
                                          "\0"sv,
                                          "\x7F"sv,
                                          "\xC3\xA4"sv,
                                          "\xE2\x82\xAC"sv,
                                          "\xEF\xBF\xBF"sv,
                                          "\xF0\x9F\x98\x80"sv,
                                          "\xC0\x8A"sv,
                                          "\xC0\xA2"sv,
                                          "\xC0\xA7"sv,
                                          "\xC1\x9C"sv,
                                          "\xC1\xA1"sv,
                                          "\xC0\xB0"sv,
                                          "\xC0\xAD"sv,
                                          "\xC0\xAE"sv,
                                          "\xC0\xBA"sv,
                                          "\xC0\xA0"sv,
                                          "\xED\xA0\x80"sv,
                                          "\xE0\x80\x8A"sv,
                                          "\xC3"sv,
                                          "\xE2\x82"sv,
                                          "\x80"sv,
                                          "\xBF"sv,
                                          "\xFF"sv,
                                          "\xFC"sv,
                                          ";"sv,
                                          "5.5"sv,
                                          "1e5"sv,
                                          "1_000"sv,
                                          "\"s\""sv,
                                          "'l'"sv,
                                          "\"\"\"m\"\"\""sv,
                                          "'''m'''"sv,
                                          "key"sv};

constexpr std::string_view numbers[] = {"1979-05-27T07:32:00.999-07:00"sv,
                                        "0979-05-27 07:32:00.5Z"sv,
                                        "07:32:00.25"sv,
                                        "27:32:00"sv,
                                        "-12_345.67_8e+9_0"sv,
                                        "+1_000"sv,
                                        "0xdead_BEEF"sv,
                                        "0o7_1"sv,
                                        "0b1_0"sv,
                                        "1e-0_5"sv,
                                        "+0.0E0"sv,
                                        "-inf"sv,
                                        "+nan"sv};

} // namespace

const std::string_view tellingBytes =
    "019aefinTtZxob_-+.:,=[]{}#\"'\\ \t\n\r@\0\x7F\x80\xC0\xA2\xC3\xE2\xF0\xFF"sv;

std::string Texts::fragmentsInARow()
{
    std::string text;
    for (unsigned count = below(12) + 1; count > 0; --count)
    {
        text += fragment();
    }
    return text;
}

std::string Texts::damaged()
{
    std::string text = fragmentsInARow();
    for (unsigned count = below(3) + 1; count > 0 && !text.empty(); --count)
    {
        const std::size_t at = below(text.size());
        switch (below(3))
        {
        case 0:
            text.erase(at, 1);
            break;
        case 1:
            text[at] = byte();
            break;
        default:
            text.insert(at, 1, byte());
            break;
        }
    }
    return text;
}

std::string Texts::bytes()
{
    std::string text;
    for (unsigned count = below(16) + 1; count > 0; --count)
    {
        text += byte();
    }
    return text;
}

std::string Texts::nearlyANumber()
{
    std::string text(numbers[below(std::size(numbers))]);
    text[below(text.size())] = tellingBytes[below(tellingBytes.size())];
    return text += fragment();
}

unsigned Texts::below(std::size_t limit)
{
    return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(limit) - 1)(engine_);
}

char Texts::byte()
{
    return below(2) == 0 ? static_cast<char>(below(256)) : tellingBytes[below(tellingBytes.size())];
}

std::string_view Texts::fragment()
{
    return fragments[below(std::size(fragments))];
}

} // namespace test
