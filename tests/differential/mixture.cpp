#include "mixture.h"

namespace test
{
namespace
{

// Values that are nearly valid, and the few that are valid by a hair.
constexpr std::string_view mistakes[] = {
    // Numbers.
    ".5", "1.", "1.e5", "-1.x", "1e", "1e+", "1E-x", "1.5e", "1.5e+_1", "1_.5", "1__0", "1_", "_1",
    "+", "+a", "+_1", "++1", "+0x1", "-0b1", "+1x", "+01", "+1e", "+infx", "+in", "+na", "infx",
    "0x", "0x_1", "0xG", "0o8", "0b2", "0X1", "00", "01.5", "-01e5", "1,5", "True", "tru", "falsey",
    "NaN",
    // Dates and times.
    "1979-05-27 # note", "1979-05-27 x", "1979-05-27 7", "1979-05-27 07", "1979-05-27 07:32",
    "1979-05-27 07:32:", "1979-05-27 07:32:0", "1979-05-27T", "1979-05-27T07",
    "1979-05-27T07:", "1979-05-27T07:32", "1979-05-27T07:32:00.", "1979-05-27T07:32:00z",
    "1979-05-27T07:32:00+", "1979-05-27T07:32:00+0100", "1979-05-27T07:32:00-07",
    "1979-05-27T07:32:00-07:3", "1979-05-27T07:32:00.5+07:30Z", "1979-05-27Z", "1979-05-27+01:00",
    "1979-05-2", "1979-5-27", "19790-05-27", "07:", "07:3", "07:32", "07:32:", "07:32:0",
    "07:32:00.", "07:32:00Z", "7:32:00", "007:32:00",
    // Arrays and inline tables.
    "[]", "[ ]", "[\n1\n]", "[1,\n2,\n]", "[1,,2]", "[,1]", "[1 2]", "[1\n,2]", "[1\n#\n,2]",
    "[1,\n#\n2]", "[1,2\n\t\n\t\n,3]", "[1,2\n \n]", "[1,2\n \n,]", "[1]]", "[1", "[[1]", "[1}",
    "{}", "{ }", "{a=1,}", "{a=1\n}", "{\na=1}", "{a=1,\nb=2}", "{a=1 b=2}", "{,a=1}", "{a}",
    "{a=}", "{=1}", "{a=1]", "{a=1", "{a.=1}", "{.a=1}", "{1=1}", R"({"""a"""=1})",
    // Strings.
    "\"", "'", "\"a", "'a", "\"a\nb\"", "'a\nb'", R"("\)", R"("\e")", R"("\x41")", R"("\u12G4")",
    R"("\u123")", R"("\U1234567")", R"(""")", R"("""")", R"("""a"")", "\"\"\"\\ \n\"\"\"",
    "\"\"\"\\\r\"\"\"", R"("""\e""")", R"("""a""""")", R"("""""""")", "'''", "''''", "'''a''",
    "'''a'''''", "''''''''",
    // Others.
    "a", "a.b", "=", "1=1", "#", "\r", "1\r", "1 2", "1\v", "@", "\xC3\xA9", "\xF0\x9F\x98\x80"};

std::string token(Random& random, TokenGenerator& tokens)
{
    switch (random.below(8))
    {
    case 0:
    case 1:
        return tokens.key();
    case 2:
        return tokens.scalar();
    case 3:
        return tokens.newlines();
    case 4:
        return tokens.comment() + tokens.newlines();
    default:
        return std::string(1, random.oneOf("=.,[]{}"));
    }
}

std::string word(Random& random, std::string_view characters)
{
    std::string text;
    for (std::size_t count = random.between(1, 12); count > 0; --count)
    {
        text += random.oneOf(characters);
    }
    return text;
}

} // namespace

std::string mixtureOfTokens(Random& random, TokenGenerator& tokens)
{
    std::string text;
    for (std::size_t count = random.between(1, 12); count > 0; --count)
    {
        text += tokens.blanks() + token(random, tokens);
    }
    return random.oneIn(2) ? text + '\n' : text;
}

std::string mixtureOfMistakes(Random& random, TokenGenerator& tokens)
{
    std::string text;
    for (std::size_t lines = random.between(1, 4); lines > 0; --lines)
    {
        const std::string mistake(random.oneOf(mistakes));
        const std::string value = tokens.scalar();
        text += random.oneIn(2)   ? tokens.key() + tokens.blanks()
                : random.oneIn(2) ? value
                                  : mistake;
        text += '=';
        text += random.oneIn(3) ? value : tokens.blanks() + mistake;
        text += tokens.blanks() + (random.oneIn(20) ? "" : tokens.newlines());
    }
    return text;
}

std::string mixtureOfCharacters(Random& random)
{
    static constexpr std::string_view characters[] = {
        "0123456789.eE+-_ ", "0123-:TtZ+. ", "01abxo_7", "truefalsinn+-_", "\"\\uU0n\n'",
        "'\\\n\r\"",         "[]{},.=\n a1", "\r\n #\t", "1-0T:",
    };
    std::string text;
    for (std::size_t lines = random.between(1, 3); lines > 0; --lines)
    {
        const std::string made = word(random, random.oneOf(characters));
        text += random.oneIn(2) ? "k=" + made : random.oneIn(2) ? made + "=1" : made;
        text += random.oneIn(8) ? "" : "\n";
    }
    return text;
}

} // namespace test
