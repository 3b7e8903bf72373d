// Strings in `vorn-toml fix`: what they stand for, and how they are written instead.
#include "fix/string_content.h"
#include "fix/string_respelling.h"

#include "tools/fixed.h"

using namespace test;

namespace
{

TEST(FixStrings, Content)
{
    for (const auto& [string, content] : std::vector<Fixed>{
             {"\"\"", ""},
             {"''", ""},
             {"\"\"\"\"\"\"", ""},
             {"'a\\n\"'", "a\\n\""},
             {"\"a\\b\\t\\n\\f\\r\\\"\\\\\"", "a\b\t\n\f\r\"\\"},
             {"\"\\u0041\\u00e9\\u20AC\\U0001F600\"", "A\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"},
             {"\"\"\"\na\\\\\n\"\"\"", "a\\\n"},
             {"\"\"\"\r\na\"\"\"", "a"},
             {"\"\"\"\n\na\"\"\"", "\na"},
             {"\"\"\"a\\ \t\n\n  \r\n b\\\n\"\"\"", "ab"},
             {"'''\na\\\n'''", "a\\\n"},
             {"''''a'''''", "'a''"},
             {"\"\"\"\"\"a\"\"\"\"\"", "\"\"a\"\""},
         })
    {
        EXPECT_EQ(tool::fixing::contentOf(string), content) << string;
    }
}

TEST(FixStrings, OthersStayAsTheyAre)
{
    for (const std::string text :
         {"\"\"", "''", "'a\"\\'", "\"\\U0001F600\\\\\"", "\"\"\"a\\\n  b\\\\ \n\"\"\"",
          "\"\"\"\"\"\"\"", "\"\"\"\"\"a\"\"\"\"", "'''''a''''", "\"\"\"a\"\\\"\"\"\"",
          "'''\\ \n'''", "\"\xef\xbf\xbf\""})
    {
        EXPECT_EQ(tool::fixing::respelledString(text), std::nullopt) << text;
    }
}

TEST(FixStrings, CharactersAboveFFFF)
{
    expectFixed({
        {"a = \"\xf0\x9f\x98\x80!\"\n", "a = \"\\U0001F600!\"\n"},
        {"a = \"\\\\\xf4\x8f\xbf\xbf\"\n", "a = \"\\\\\\U0010FFFF\"\n"},
        {"a = \"\"\"\n\xf0\x90\x80\x80\n\"\"\"\n", "a = \"\"\"\n\\U00010000\n\"\"\"\n"},
        {"a = 'C:\\\xf0\x9f\x98\x80\"'\n", "a = \"C:\\\\\\U0001F600\\\"\"\n"},
        {"a = '''\n\xf0\x9f\x98\x80\\ \"\"\"\"\n'\"'''\n",
         "a = \"\"\"\n\\U0001F600\\\\ \"\"\\\"\"\n'\\\"\"\"\"\n"},
        {"a = '''b\\\n\xf0\x9f\x98\x80\\\r\n\\'''\n",
         "a = \"\"\"b\\u005C\n\\U0001F600\\u005C\r\n\\\\\"\"\"\n"},
        {"\"\xf0\x9f\x98\x80\" = 1\n", "\"\\U0001F600\" = 1\n"},
        {"['\xf0\x9f\x98\x80\\'.b]\n", "[\"\\U0001F600\\\\\".b]\n"},
        {"a = { '\xf0\x9f\x98\x80' = 1 }\n", "a = { \"\\U0001F600\" = 1 }\n"},
    });
}

TEST(FixStrings, BlanksAfterLineEndingBackslashes)
{
    expectFixed({
        {"a = \"\"\"b\\ \nc\"\"\"\n", "a = \"\"\"b\\\nc\"\"\"\n"},
        {"a = \"\"\"b\\\t \r\n  c\\\\\\  \n\\ \n\"\"\"\n",
         "a = \"\"\"b\\\r\n  c\\\\\\\n\\\n\"\"\"\n"},
        {"a = \"\"\"\\\n  \n \\  \n  b\"\"\"\n", "a = \"\"\"\\\n  \n \\\n  b\"\"\"\n"},
    });
}

TEST(FixStrings, TwoQuotesBeforeTheClosingDelimiter)
{
    expectFixed({
        {"a = \"\"\"b\"\"\"\"\"\n", "a = \"\"\"b\"\\\"\"\"\"\n"},
        {"a = \"\"\"\"\"\"\"\"\n", "a = \"\"\"\"\\\"\"\"\"\n"},
        {"a = '''b'''''\n", "a = \"\"\"b''\"\"\"\n"},
        {"a = ''''''''\n", "a = \"\"\"''\"\"\"\n"},
        {"a = '''\n\"\"\"\\b\n'''''\n", "a = \"\"\"\n\"\"\\\"\\\\b\n''\"\"\"\n"},
    });
    expectUnchanged({"a = \"\"\"b\\\"\"\"\"\"\n"});
}

} // namespace
