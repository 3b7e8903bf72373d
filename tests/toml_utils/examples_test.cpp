// The examples of the public header: each yields what it says, and none is missing here.
#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/file_content.h"
#include "support/global_locale.h"

using namespace vorn::parsers::toml;
using test::fileContent;
using test::germanLocale;
using test::GlobalLocale;

namespace
{

struct Example
{
    std::string call;    // as it is written
    std::string comment; // what the header says of it
    std::function<void()> check;
};

#define EXAMPLE(call, comment, value)                                                              \
    {                                                                                              \
#call, comment, [] { EXPECT_EQ(call, value); }                                             \
    }
#define GERMAN_EXAMPLE(call, comment, value)                                                       \
    {                                                                                              \
#call, comment, []                                                                            \
     {                                                                                             \
         const GlobalLocale german(germanLocale());                                                \
         EXPECT_EQ(call, value);                                                                   \
     }    \
    }

// clang-format off
const std::vector<Example> examples = {
    EXAMPLE(unquote("\"red\""), "red", "red"),
    EXAMPLE(unquote("'C:\\temp'"), R"(C:\temp)", R"(C:\temp)"),
    EXAMPLE(unquote("\"a\\tb\""), R"(a\tb, four characters: the escape stays)", R"(a\tb)"),
    EXAMPLE(unquote("\"it's'"), R"("it's', unchanged: the ends differ)", R"("it's')"),
    EXAMPLE(unquote("\""), "empty: the one quote is both ends", ""),
    EXAMPLE(unquote("'''x'''", "'''"), "x", "x"),
    EXAMPLE(unquote("--x-", "--"), "--x-, unchanged", "--x-"),
    EXAMPLE(unquote("''''", "'''"), "empty", ""),
    EXAMPLE(enquote("x", "'"), "'x'", "'x'"),
    EXAMPLE(enquote("it's", "'"), "'it's'", "'it's'"),
    EXAMPLE(processMultilineString("\"\"\"\none\\\n   two\"\"\""), "onetwo", "onetwo"),
    EXAMPLE(processMultilineString("\"\"\"a\\tb\"\"\""), R"(a\tb, the escape stays)", R"(a\tb)"),
    EXAMPLE(processMultilineString("\"\"\"\r\nx\"\"\""), "CR, LF, x", "\r\nx"),
    EXAMPLE(processMultilineLiteralString("'''\nC:\\temp\\\n'''"),
            R"(C:\temp\ and a line feed)", "C:\\temp\\\n"),
    GERMAN_EXAMPLE(parseFloat("3.5"), "35: the point is German digit grouping", 35.0),
    EXAMPLE(parseBoolean("true"), "true", true),
    EXAMPLE(parseBoolean("True"), "false: the names are in lower case", false),
    EXAMPLE(parseInteger("-1_000"), "-1000", -1000),
    EXAMPLE(parseInteger("0xDEAD_beef"), "3735928559", 3735928559),
    EXAMPLE(parseInteger("0o755"), "493", 493),
    EXAMPLE(parseInteger("0b1101_0101"), "213", 213),
    EXAMPLE(parseInteger("9223372036854775808"), "9223372036854775807", 9223372036854775807),
    EXAMPLE(parseInteger("0x8000000000000000"), "9223372036854775807", 9223372036854775807),
    EXAMPLE(parseInteger("-0x1"), "0: a prefix stands at the start only", 0),
    EXAMPLE(parseInteger(""), "0", 0),
    EXAMPLE(parseFloat("6.626e-34"), "6.626e-34", 6.626e-34),
    EXAMPLE(parseFloat("1_000.5"), "1000.5", 1000.5),
    EXAMPLE(parseFloat("-inf"), "0.0", 0.0),
    EXAMPLE(parseFloat("1e400"), "1.7976931348623157e308", 1.7976931348623157e308),
    EXAMPLE(parseFloat("1e"), "0.0: an exponent has digits", 0.0),
};
// clang-format on

// The header's examples for strings, booleans and numbers, with their comments.
std::string examplesOfTheHeader()
{
    const std::regex call(R"(//   ((?:unquote|enquote|process\w+|parse(?!DateTime)\w+)\(.*\);?))"
                          R"((?: +// (.*))?)");
    std::istringstream header(fileContent(VORN_HEADER));
    std::string found;
    std::smatch match;
    for (std::string line; std::getline(header, line);)
    {
        if (std::regex_match(line, match, call))
        {
            found += match.str(1) + " // " + match.str(2) + '\n';
        }
    }
    return found;
}

} // namespace

TEST(TomlHeaderExamples, areAllHere)
{
    std::string here;
    for (const Example& example : examples)
    {
        here += example.call + " // " + example.comment + '\n';
    }
    EXPECT_EQ(examplesOfTheHeader(), here);
}

TEST(TomlHeaderExamples, yieldWhatTheySay)
{
    for (const Example& example : examples)
    {
        SCOPED_TRACE(example.call + " // " + example.comment);
        example.check();
    }
}

TEST(TomlHeaderExamples, nameTheGermanLocaleThatIsUsedHere)
{
    const std::string line = R"(std::locale::global(std::locale("de_DE.UTF-8"));)";
    EXPECT_NE(fileContent(VORN_HEADER).find("//   " + line + '\n'), std::string::npos);
    EXPECT_EQ(germanLocale().name(), "de_DE.UTF-8");
}
