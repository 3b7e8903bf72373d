// Quotes and delimiters: taken off a text and put around one.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include <vorn/parsers/toml.h>

using namespace std::string_literals;
using vorn::parsers::toml::enquote;
using vorn::parsers::toml::unquote;

namespace
{

struct QuotedCase
{
    std::string text;
    std::string value;
};

void expectUnquoted(const std::vector<QuotedCase>& cases)
{
    for (const QuotedCase& quoted : cases)
    {
        SCOPED_TRACE(testing::PrintToString(quoted.text));
        EXPECT_EQ(unquote(quoted.text), quoted.value);
    }
}

void expectUnchanged(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectUnquoted({{text, text}});
    }
}

struct DelimitedCase
{
    std::string text;
    std::string delimiter;
    std::string value;
};

void expectUndelimited(const std::vector<DelimitedCase>& cases)
{
    for (const DelimitedCase& delimited : cases)
    {
        SCOPED_TRACE(testing::PrintToString(delimited.text) + " and " +
                     testing::PrintToString(delimited.delimiter));
        EXPECT_EQ(unquote(delimited.text, delimited.delimiter), delimited.value);
    }
}

void expectKept(const std::string& delimiter, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectUndelimited({{text, delimiter, text}});
    }
}

} // namespace

TEST(Unquote, takesAndReturnsStringsByValue)
{
    using ByQuote = std::string (*)(std::string);
    using ByDelimiter = std::string (*)(std::string, const std::string&);
    const ByQuote byQuote = &unquote;
    const ByDelimiter byDelimiter = &unquote;
    const std::string text = "'x'";
    EXPECT_EQ(byQuote(text), "x");
    EXPECT_EQ(byDelimiter(text, "'"), "x");
    EXPECT_EQ(text, "'x'");
}

TEST(Unquote, takesOneQuoteOffEachEnd)
{
    expectUnquoted({
        {R"("")", ""},
        {"''", ""},
        {R"("red")", "red"},
        {"'red'", "red"},
        {R"(" ")", " "},
        {"'C:\\path\\'", "C:\\path\\"},
        {"\"a\nb\"", "a\nb"},
        {"\"\xc3\xa9\xff\"", "\xc3\xa9\xff"},
        {"\"" + std::string(100'000, 'x') + "\"", std::string(100'000, 'x')},
    });
}

TEST(Unquote, leavesQuotesInsideAndTheOtherQuoteAlone)
{
    expectUnquoted({
        {R"("it's")", "it's"},
        {R"('say "x"')", R"(say "x")"},
        {R"("'x'")", "'x'"},
        {R"('"x"')", R"("x")"},
        {R"("a"b")", R"(a"b)"},
        {"'a'b'c'", "a'b'c"},
        {"'a''", "a'"},
        {"''a'", "'a"},
        {"'''a'''", "''a''"},
    });
}

TEST(Unquote, leavesEscapesAsTheyAreWritten)
{
    expectUnquoted({
        {R"("a\tb\n")", R"(a\tb\n)"},
        {R"("\"")", R"(\")"},
        {R"("\\")", R"(\\)"},
        {R"("\u00e9\U0001F600")", R"(\u00e9\U0001F600)"},
        {R"("a\")", R"(a\)"}, // the quote after a backslash is an end like any other
        {R"('\')", R"(\)"},
        {"\"a\\\n b\"", "a\\\n b"},
    });
}

TEST(Unquote, leavesATextWithoutAQuoteAtItsStartAlone)
{
    expectUnchanged({"", "a", "red", "a\"", "a'", " 'x'", "\n\"x\"", "x'y'", "\\\"x\"", "`x`",
                     "\xe2\x80\x9cx\xe2\x80\x9d", "\0"s, "\0'x'"s});
}

TEST(Unquote, leavesATextWhoseEndsDifferAlone)
{
    expectUnchanged({R"("a')", R"('a")", R"("')", R"('")", R"("a)", "'a", R"("a" )", "'a'\n",
                     R"("a"b)", R"(""x)", "'x'\0"s});
}

TEST(Unquote, takesOneQuoteForBothEnds)
{
    expectUnquoted({{"\"", ""}, {"'", ""}});
}

TEST(Unquote, leavesAllButTwoOfARowOfQuotes)
{
    for (const char quote : {'"', '\''})
    {
        for (std::size_t count = 2; count <= 8; ++count)
        {
            expectUnquoted({{std::string(count, quote), std::string(count - 2, quote)}});
        }
    }
}

TEST(Unquote, takesNulBytesForOrdinaryCharacters)
{
    expectUnquoted({{"'a\0b'"s, "a\0b"s}, {"\"\0\""s, "\0"s}, {"'\0\0'"s, "\0\0"s}});
}

TEST(UnquoteDelimiter, isTakenOffBothEnds)
{
    expectUndelimited({
        {"'''x'''", "'''", "x"},
        {R"("""x""")", R"(""")", "x"},
        {"--x--", "--", "x"},
        {"<>x<>", "<>", "x"},
        {"xax", "x", "a"},
        {"--a--b--", "--", "a--b"},
        {"----", "--", ""},
        {"---x---", "--", "-x-"},
        {"'x'", "'", "x"},
        {"''x''", "'", "'x'"},
        {"\nx\n", "\n", "x"},
        {"\xc3\xa9x\xc3\xa9", "\xc3\xa9", "x"},
        {R"("""\"""")", R"(""")", R"(\")"},
    });
}

TEST(UnquoteDelimiter, staysWhereItStandsAtOneEndOnlyOrAtNone)
{
    expectKept("--", {"--x-", "-x--", "--x", "x--", "x--y", "x", "--x-- ", " --x--"});
    expectKept("'''", {"'''x\"\"\""});
    expectKept("\"\"\"", {"'''x'''"});
    expectKept("ab", {"aba"});
    expectKept("<>", {"<x>"});
    expectKept("a", {"AxA", ""});
}

TEST(UnquoteDelimiter, longerThanTheTextIsNotInIt)
{
    expectKept("'''", {"", "'", "''"});
    expectKept("abc", {"ab"});
    expectKept(std::string(1000, 'x'), {"x"});
}

TEST(UnquoteDelimiter, thatIsTheWholeTextLeavesNothing)
{
    expectUndelimited({{"'", "'", ""}, {"'''", "'''", ""}, {"abc", "abc", ""}, {"\0"s, "\0"s, ""}});
}

TEST(UnquoteDelimiter, thatOverlapsItselfGoesFromTheEndFirst)
{
    expectUndelimited({
        {"ababa", "aba", ""}, // "ab" is left, less than the delimiter
        {"abcabcab", "abcab", ""},
        {"abaXaba", "aba", "X"},
        {"abaaba", "aba", ""},
        {"aaab", "aaab", ""},
        {"aXaXa", "aXa", ""},
    });
}

TEST(UnquoteDelimiter, ofThreeQuotesInARowOfQuotes)
{
    for (const char quote : {'"', '\''})
    {
        const auto row = [quote](std::size_t count) { return std::string(count, quote); };
        expectUndelimited({
            {row(1), row(3), row(1)},
            {row(2), row(3), row(2)},
            {row(3), row(3), ""},
            {row(4), row(3), ""},
            {row(5), row(3), ""},
            {row(6), row(3), ""},
            {row(7), row(3), row(1)},
            {row(8), row(3), row(2)},
            {row(9), row(3), row(3)},
        });
    }
}

TEST(UnquoteDelimiter, thatIsEmptyChangesNothing)
{
    expectKept("", {"", "a", "'a'", "\0a"s});
}

TEST(UnquoteDelimiter, mayHoldNulBytes)
{
    expectUndelimited({
        {"\0x\0"s, "\0"s, "x"},
        {"-\0x-\0"s, "-\0"s, "x"},
        {"-\0x-"s, "-\0"s, "-\0x-"s},
        {"-x\0-"s, "-", "x\0"s},
    });
}

TEST(Enquote, putsTheDelimiterOnBothEnds)
{
    static_assert(std::is_same_v<decltype(&enquote),
                                 std::string (*)(const std::string&, const std::string&)>);
    for (const DelimitedCase& delimited : std::vector<DelimitedCase>{
             {"x", "'", "'x'"},
             {"x", "\"", "\"x\""},
             {"x", "'''", "'''x'''"},
             {"", "'", "''"},
             {"x", "", "x"},
             {"", "", ""},
             {"it's", "'", "'it's'"},
             {"'x'", "'", "''x''"},
             {"a\"b\\", "\"", "\"a\"b\\\""},
             {"a\r\nb", "\"\"\"", "\"\"\"a\r\nb\"\"\""},
             {"1000", "<1000>", "<1000>1000<1000>"},
             {"a\0b"s, "\0"s, "\0a\0b\0"s},
             {"\xc3\xa9", "\xff", "\xff\xc3\xa9\xff"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(delimited.text) + " and " +
                     testing::PrintToString(delimited.delimiter));
        EXPECT_EQ(enquote(delimited.text, delimited.delimiter), delimited.value);
    }
}
