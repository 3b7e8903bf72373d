// What `vorn-toml fix` makes of documents, beside strings and arrays.
#include "fix/fix.h"

#include "tools/fixed.h"

using namespace test;
using tool::fixing::FixOutcome;
using tool::fixing::FixResult;

namespace
{

TEST(Fix, LeavesAcceptedDocuments)
{
    expectUnchanged({
        "",
        "# end",
        "  \t",
        "\xef\xbb\xbf",
        "a = 1\r\n  # c\n",
        "a = 2024-01-31# c\nb = 2024-01-31\t# c\nc = [2024-01-31,2024-01-31]\n",
        // What is accepted without being TOML 1.0 is left alone as well.
        "a = 1\na = 2\n",
        "[ [a] ]\n",
        "a = \"\\'\x01\"\n",
        "a = 1\n\xc1?\nb = []\n",
    });
}

TEST(Fix, EndsTheLastLine)
{
    expectFixed({
        {"a = 1", "a = 1\n"},
        {"[a]", "[a]\n"},
        {"[[a]]# c", "[[a]]# c\n"},
        {"a = 1\t", "a = 1\t\n"},
        {"a = 1\r\nb = 2", "a = 1\r\nb = 2\r\n"},
        {"a = 1\r\nb = 2\nc = 3", "a = 1\r\nb = 2\nc = 3\n"},
        {"a = \"\"\"\r\n\"\"\"", "a = \"\"\"\r\n\"\"\"\r\n"},
        {"\xef\xbb\xbf"
         "a = 1",
         "\xef\xbb\xbf"
         "a = 1\n"},
    });
}

TEST(Fix, QuotesKeysThatReadAsValues)
{
    for (const std::string key :
         {"true", "false", "inf", "nan", "-inf", "-nan", "0", "-0", "1234", "-1", "1_000", "1e5",
          "-1E05", "0x1F", "0o7", "0b1", "2020-01-01", "9999-99-99"})
    {
        const std::string quoted = '"' + key + '"';
        expectFixed({
            {key + " = 1\n", quoted + " = 1\n"},
            {key + "=1\n", quoted + "=1\n"},
            {"[" + key + "]\n", "[" + quoted + "]\n"},
            {"[[ " + key + " ]]\n", "[[ " + quoted + " ]]\n"},
            {"a." + key + " . b=1\n", "a." + quoted + " . b=1\n"},
            {"a = {b = 1, " + key + " = 2}\n", "a = {b = 1, " + quoted + " = 2}\n"},
        });
    }
    expectFixed({
        {"3.14 = 1\n", "\"3\".\"14\" = 1\n"},
        {"3 . 14 = 1\n", "\"3\" . \"14\" = 1\n"},
        {"[1.2.3]\n", "[\"1\".\"2\".\"3\"]\n"},
        {"a.1e5.true.b = 1\n", "a.\"1e5\".\"true\".b = 1\n"},
        {"1e5.5a = 1\n", "\"1e5\".5a = 1\n"},
    });
    for (const std::string key : {"00", "-", "--", "_", "1a", "1e", "0x", "trues", "true-", "inf_",
                                  "1979-05-27T07", "2020-01-0", "2020-01-011", "1__0"})
    {
        expectUnchanged({key + " = 1\n" + key + "_." + key + "=1\n[" + key + "]\n"});
    }
}

TEST(Fix, WritesDatesAsTheyAreRead)
{
    expectFixed({
        {"a = 2024-01-31 # c\n", "a = 2024-01-31\t# c\n"},
        {"a = 2024-01-31 \t # c\n", "a = 2024-01-31\t# c\n"},
        {"a = 2024-01-31  \n", "a = 2024-01-31\n"},
        {"a = 2024-01-31 ", "a = 2024-01-31\n"},
        {"a = [2024-01-31 , 2024-01-31 ]\n", "a = [2024-01-31, 2024-01-31]\n"},
        {"a = { b = 2024-01-31 }\n", "a = { b = 2024-01-31}\n"},
        {"a = [1, 2024-01-31 , \n]\n", "a = [1, 2024-01-31\n]\n"},
        {"a = [\n 2024-01-31 # c\n]\n", "# c\na = [\n 2024-01-31]\n"},
        {"a = 1979-05-27T07:32:00z\n", "a = 1979-05-27T07:32:00Z\n"},
        {"a = 1979-05-27 07:32:00.5z # c\n", "a = 1979-05-27 07:32:00.5Z # c\n"},
    });
}

TEST(Fix, RemovesCommentsOnlyIfItMay)
{
    const std::string high = "# \xf0\x9f\x98\x80";
    const FixResult result = fixText("a = 1 " + high + "\nb = 2 #\xf4\x8f\xbf\xbf\n");
    EXPECT_EQ(result.outcome, FixOutcome::inexpressible);
    ASSERT_EQ(result.findings.size(), 2U);
    EXPECT_EQ(result.findings[0].begin, 8U);
    EXPECT_EQ(result.findings[0].end, 12U);
    EXPECT_EQ(result.findings[0].message,
              "a character above U+FFFF (U+1F600) cannot be expressed in a comment");
    EXPECT_EQ(result.findings[1].begin, 20U);
    expectFixed(
        {
            {"a = 1 " + high + "\n" + high + "\n \t" + high + "\r\nb = 2\n", "a = 1\nb = 2\n"},
            {"a = 1\n" + high, "a = 1\n"},
            {"\xef\xbb\xbf" + high + "\na = 1\n", "\xef\xbb\xbf"
                                                  "a = 1\n"},
            {"a = 1" + high, "a = 1\n"},
            {"a = [1, " + high + "\n  " + high + "\n  # c\n  2]\n", "  # c\na = [1,\n  2]\n"},
            {"a = 2024-01-31 " + high + "\n", "a = 2024-01-31\n"},
            {"a = '\xf0\x9f\x98\x80'" + high + "\n# c\n", "a = \"\\U0001F600\"\n# c\n"},
        },
        true);
}

TEST(Fix, SaysWhatCannotBeExpressed)
{
    struct Case
    {
        std::string text;
        std::size_t begin;
        std::string message;
    };
    for (const auto& [text, begin, message] : std::vector<Case>{
             {"a = []\n", 5, "an empty array cannot be expressed"},
             {"a = [ # c\n]\n", 10, "an empty array cannot be expressed"},
             {"a = [1, [\n]]\n", 10, "an empty array cannot be expressed"},
             {"a = {}\n", 5, "an empty inline table cannot be expressed"},
             {"a = {b = { }}\n", 11, "an empty inline table cannot be expressed"},
         })
    {
        SCOPED_TRACE(text);
        const FixResult result = fixText(text, true);
        EXPECT_EQ(result.outcome, FixOutcome::inexpressible);
        EXPECT_EQ(result.text, "");
        ASSERT_EQ(result.findings.size(), 1U);
        EXPECT_EQ(result.findings[0].begin, begin);
        EXPECT_EQ(result.findings[0].message, message);
    }
}

TEST(Fix, SaysWhatIsNotToml)
{
    struct Case
    {
        std::string text;
        std::size_t begin;
        std::string message;
    };
    for (const auto& [text, begin, message] : std::vector<Case>{
             {"a = 1 b = []\n", 6, "expected the end of the line"},
             {"a =", 3, "expected a value"},
             {"a = []\nb = \"\\x41\"\n", 12, "an unknown escape"},
             {"a = []\n# \xff\n", 9, "bytes that are not UTF-8"},
             {"a = []\n# \x01\n", 9, "a control character in a comment"},
         })
    {
        SCOPED_TRACE(text);
        const FixResult result = fixText(text);
        EXPECT_EQ(result.outcome, FixOutcome::notToml);
        ASSERT_EQ(result.findings.size(), 1U);
        EXPECT_EQ(result.findings[0].begin, begin);
        EXPECT_EQ(result.findings[0].message, "this is not TOML 1.0: " + message);
    }
}

// Whatever is inserted, there is a result, and a fixed document is done.
TEST(Fix, TakesAnyInsertion)
{
    for (const std::string text :
         {"a = [\n1,\n]\n\"b\" = '\xf0\x9f\x98\x80'",
          "3.14 = {a = 2024-01-31 }\n[1]\nb=\"\"\"\"\"\"\"\"", "a = [1, # c\n# d\n2\n,\n]\r\n"})
    {
        for (std::size_t at = 0; at <= text.size(); ++at)
        {
            for (int byte = 0; byte < 128; ++byte)
            {
                std::string changed = text;
                changed.insert(at, 1, static_cast<char>(byte));
                const FixResult result = fixText(changed);
                ASSERT_NE(result.outcome, FixOutcome::failed) << changed;
                if (result.outcome == FixOutcome::fixed)
                {
                    ASSERT_EQ(fixText(result.text).outcome, FixOutcome::unchanged) << changed;
                }
            }
            ASSERT_NE(fixText(text.substr(0, at)).outcome, FixOutcome::failed) << at;
        }
    }
}

} // namespace
