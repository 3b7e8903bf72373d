#include "lexer_texts.h"

#include <iterator>
#include <vector>

namespace test
{
namespace
{

using namespace std::string_view_literals;

// What tokens, and what is nearly one, are made of, with bars between them.
constexpr std::string_view joinedFragments =
    "0|1|7|9|12|07|1979|0001|1979-05-27|07:32:00|T|t|Z|z|:|-|+|_|.|e|E|0x|0o|0b|1F|01|"sv
    "inf|nan|true|false|tru|a|Z9| |\t|\n|\r|\r\n|#|# c|\"|\"\"|\"\"\"|'|''|'''|\\|\\n|"sv
    "\\\"|\\'|\\u00|\\u12Af|\\U0001F60|\\U0001F600|\\\n|\\\r\n|\\\r|\\ |\\q|,|=|[|]|{|}|"sv
    "@|\0|\x7F|\xC3\xA4|\xE2\x82\xAC|\xEF\xBF\xBF|\xF0\x9F\x98\x80|\xC0\x8A|\xC0\xA2|"sv
    "\xC0\xA7|\xC1\x9C|\xC1\xA1|\xC0\xB0|\xC0\xAD|\xC0\xAE|\xC0\xBA|\xC0\xA0|"sv
    "\xED\xA0\x80|\xE0\x80\x8A|\xC3|\xE2\x82|\x80|\xBF|\xFF|\xFC|;|5.5|1e5|1_000|\"s\"|"sv
    "'l'|\"\"\"m\"\"\"|'''m'''|key|T07:32:00| 07:32:00|+07:00|-05-27|07:|.5|05|1.5|1e|x|o|b| = |\\u00e9"sv;

std::vector<std::string_view> splitFragments()
{
    std::vector<std::string_view> fragments;
    for (std::size_t begin = 0, end = 0; end != std::string_view::npos; begin = end + 1)
    {
        end = joinedFragments.find('|', begin);
        fragments.push_back(joinedFragments.substr(begin, end - begin));
    }
    return fragments;
}

constexpr std::string_view numbers[] = {
    // Dates and times
    "1979-05-27T07:32:00.999-07:00", "0979-05-27 07:32:00.5Z", "07:32:00.25", "27:32:00",
    // Numbers

    "-12_345.67_8e+9_0", "+1_000", "0xdead_BEEF", "0o7_1", "0b1_0", "1e-0_5", "+0.0E0", "-inf",
    "+nan"};

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
    static const std::vector<std::string_view> fragments = splitFragments();
    return fragments[below(fragments.size())];
}

} // namespace test
