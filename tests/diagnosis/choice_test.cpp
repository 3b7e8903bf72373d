// Which of the recognisers' errors are mistakes of their own.
#include "diagnosis/choice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace diagnosis = vorn::parsers::toml::diagnosis;

namespace
{

std::string mistakesIn(const std::string& text)
{
    std::vector<diagnosis::Mistake> mistakes;
    diagnosis::addMistakes(text, diagnosis::recognise(text, diagnosis::wholeOf(text)), mistakes);
    std::string shown;
    for (const diagnosis::Mistake& one : mistakes)
    {
        shown += std::to_string(one.begin) + ' ' + one.code + ' ';
    }
    return shown;
}

} // namespace

TEST(Choice, leavesOutWhatFollowsFromACharacterOnTheSameLine)
{
    EXPECT_EQ(mistakesIn("a = @ 1 2\n"), "4 unquoted-string ");
    EXPECT_EQ(mistakesIn("@ @\n@\n"), "0 stray-character 4 stray-character ");
    // The line break before a token belongs to that line.
    EXPECT_EQ(mistakesIn("@\n]\n"), "0 stray-character ");
    EXPECT_EQ(mistakesIn("@\na\n]\n"), "0 stray-character 3 missing-equals 4 stray-bracket ");
}

TEST(Choice, leavesOutWhatFollowsInAStatement)
{
    EXPECT_EQ(mistakesIn("[[b]\nx\n"), "4 unclosed-header ");
    EXPECT_EQ(mistakesIn("[a = 1\n"), "3 unclosed-header ");
}

TEST(Choice, goesOnAfterEmptyBrackets)
{
    EXPECT_EQ(mistakesIn("b = [\n{}\n"), "7 empty-inline-table 9 unclosed-array ");
    EXPECT_EQ(mistakesIn("a[\n[][]\n"), "1 missing-equals 4 missing-equals ");
}

TEST(Choice, addsTheMissingLineBreakUnlessAMistakeIsNear)
{
    EXPECT_EQ(mistakesIn("a = 1"), "5 missing-last-line-break ");
    EXPECT_EQ(mistakesIn("a = []\nb = 1"), "5 empty-array 12 missing-last-line-break ");
    EXPECT_EQ(mistakesIn("[a = 1\na"), "3 unclosed-header 8 missing-last-line-break ");
    // On the last line, in the last statement, or at the last token.
    EXPECT_EQ(mistakesIn("[]["), "1 missing-key ");
    EXPECT_EQ(mistakesIn("{\n{"), "0 missing-key ");
    EXPECT_EQ(mistakesIn("]"), "0 stray-bracket ");
}
