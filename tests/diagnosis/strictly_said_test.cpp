// What is said with `strict`, where that is more than what is found: hints, and one finding only
// where two would be about the same bytes.
#include "diagnosis/explained.h"

#include <gtest/gtest.h>

using namespace test;

namespace
{

const std::string latin1 = "It looks like Latin-1 or Windows-1252";
const std::string save = " Save the file as UTF-8.";
const std::string misread = "Such bytes may be misread, together with those after them." + save;

} // namespace

TEST(StrictDiagnosis, tellsBytesThatReadAsTheEndOnce)
{
    expectSaidStrictly({
        {"a = 1\n\xc3", {{"2:1 error: the byte C3 is not valid UTF-8", misread}}},
        {"# \xed\xa0\x80\xc3",
         {{"1:3 error: the 4 bytes from ED on are not valid UTF-8", misread}}},
        {"a = 1\n# \xf8\n",
         {{"2:3 error: the byte F8 is not valid UTF-8",
           latin1 + ", where it stands for '\xc3\xb8'." + save +
               " The rest is not read until then."}}},
    });
}

TEST(StrictDiagnosis, namesTheEncodingThatBytesLookLike)
{
    expectSaidStrictly({
        {"a = \"\xe9t\xe9s\"\n",
         {{"1:6 error: the byte E9 is not valid UTF-8",
           latin1 + ", where it stands for '\xc3\xa9'." + save},
          {"1:8 error: the byte E9 is not valid UTF-8",
           latin1 + ", where it stands for '\xc3\xa9'." + save}}},
        {"# \xe9\xe8tes\n",
         {{"1:3 error: the 2 bytes from E9 on are not valid UTF-8", latin1 + '.' + save}}},
        {"# \x93x\n",
         {{"1:3 error: the byte 93 is not valid UTF-8", "It looks like Windows-1252." + save}}},
        {"\xff\xfe",
         {{"1:1 error: the 2 bytes from FF on are not valid UTF-8",
           misread + " The rest is not read until then."}}},
    });
}

// Up to where they are told.
TEST(StrictDiagnosis, tellsNoByteTwice)
{
    expectSaidStrictly({
        {"a = \"\x93\xe8t\"\n",
         {{"1:6 error: the byte 93 is not valid UTF-8", "It looks like Windows-1252." + save},
          {"1:7 error: the byte E8 is not valid UTF-8",
           latin1 + ", where it stands for '\xc3\xa8'." + save}}},
    });
}

TEST(StrictDiagnosis, tellsUtf16RatherThanItsBytes)
{
    std::string text;
    for (const char c : "# a comment of more than twenty characters\na = 1\n")
    {
        text += {c, '\0'};
    }
    expectSaidStrictly({
        {text,
         {{"2:1 error: the file is encoded in UTF-16",
           "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."}}},
    });
}

// Hints hold whether TOML 1.0 is asked for or not.
TEST(StrictDiagnosis, offersNothingThatIsForbidden)
{
    const std::vector<Explained> documents = {
        {"a = \"\\q\"\n",
         {{"1:6 error: unknown escape \\q",
           "In a literal string a backslash is just a backslash: '\\q'. The valid escapes are \\\" "
           "\\\\ \\b \\f \\n \\r \\t \\uXXXX \\UXXXXXXXX."}}},
        {"a = \x01\n",
         {{"1:5 error: the character U+0001 is not allowed here",
           "Of control characters only tabs and line breaks may appear outside of strings and "
           "comments."}}},
    };
    expectSaid(documents);
    expectSaidStrictly(documents);
}
