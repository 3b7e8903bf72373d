// The differences that `vorn-toml fix --diff` prints.
#include "fix/line_matching.h"
#include "fix/unified_diff.h"

#include "support/run_program.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using tool::fixing::linesOf;
using tool::fixing::Match;
using tool::fixing::matchLines;
using tool::fixing::unifiedDiff;

namespace
{

std::string numbered(int from, int to)
{
    std::string lines;
    for (int line = from; line <= to; ++line)
    {
        lines += std::to_string(line) + '\n';
    }
    return lines;
}

TEST(FixUnifiedDiff, IsLikeThatOfDiff)
{
    EXPECT_EQ(unifiedDiff("f", "a\n", "a\n"), "");
    EXPECT_EQ(unifiedDiff("f", "", "a\n"), "--- f\n+++ f\n@@ -0,0 +1 @@\n+a\n");
    EXPECT_EQ(unifiedDiff("f", "a\n", ""), "--- f\n+++ f\n@@ -1 +0,0 @@\n-a\n");
    EXPECT_EQ(unifiedDiff("f", "a", "a\n"),
              "--- f\n+++ f\n@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n");
    EXPECT_EQ(unifiedDiff("f", numbered(1, 9), numbered(1, 4) + "x\n" + numbered(6, 9)),
              "--- f\n+++ f\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n");
    EXPECT_EQ(unifiedDiff("f", numbered(1, 20), "x\n" + numbered(1, 19)),
              "--- f\n+++ f\n@@ -1,3 +1,4 @@\n+x\n 1\n 2\n 3\n@@ -17,4 +18,3 @@\n 17\n 18\n 19\n"
              "-20\n");
    // Six equal lines join two changes, seven part them.
    EXPECT_EQ(unifiedDiff("f", "a\n" + numbered(1, 6) + "b\n", "A\n" + numbered(1, 6) + "B\n"),
              "--- f\n+++ f\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
    EXPECT_EQ(unifiedDiff("f", "a\n" + numbered(1, 7) + "b\n", "A\n" + numbered(1, 7) + "B\n"),
              "--- f\n+++ f\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n"
              "-b\n+B\n");
}

unsigned below(std::mt19937& random, unsigned count)
{
    return static_cast<unsigned>(random() % count);
}

// Texts of few different lines, so that many are the same.
std::string randomText(std::mt19937& random, unsigned lines)
{
    std::string text;
    for (unsigned line = below(random, lines); line > 0; --line)
    {
        text += std::to_string(below(random, 12)) + '\n';
    }
    if (!text.empty() && below(random, 3) == 0)
    {
        text.pop_back();
    }
    return text;
}

TEST(FixUnifiedDiff, MatchesOnlyEqualLinesInOrder)
{
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round)
    {
        const std::string before = randomText(random, 30);
        const std::string after = randomText(random, 30);
        const auto one = linesOf(before);
        const auto other = linesOf(after);
        Match last = {0, 0, 0};
        for (const Match& match : matchLines(one, other))
        {
            ASSERT_GE(match.before, last.before + last.count);
            ASSERT_GE(match.after, last.after + last.count);
            for (std::size_t line = 0; line < match.count; ++line)
            {
                ASSERT_EQ(one[match.before + line], other[match.after + line]);
            }
            last = match;
        }
        ASSERT_EQ(last.before + last.count, one.size());
        ASSERT_EQ(last.after + last.count, other.size());
    }
}

TEST(FixUnifiedDiff, IsWhatPatchReads)
{
    if (test::runProgram({"/bin/sh", "-c", "command -v patch"}).status != 0)
    {
        GTEST_SKIP() << "There is no program patch.";
    }
    std::mt19937 random(2);
    const test::TemporaryDirectory directory;
    for (int round = 0; round < 60; ++round)
    {
        const std::string before = randomText(random, 60);
        const std::string after = randomText(random, 60);
        const std::string file = directory.write("f", before);
        const std::string diff = directory.write("d", unifiedDiff("f", before, after));
        const test::ProgramRun run = test::runProgram(
            {"/bin/sh", "-c",
             "if [ -s \"$1\" ]; then patch -s -o - \"$0\" \"$1\"; else cat \"$0\"; fi", file,
             diff});
        EXPECT_EQ(run.status, 0) << run.standardError;
        EXPECT_EQ(run.standardOutput, after);
    }
}

TEST(FixUnifiedDiff, TakesLargeTexts)
{
    std::string before;
    std::string after;
    for (int line = 0; line < 200000; ++line)
    {
        before += line % 2 == 0 ? "1,\n" : std::to_string(line) + " \n";
        after += line % 2 == 0 ? "1,\n" : std::to_string(line) + "\n";
    }
    EXPECT_GT(unifiedDiff("f", before, after).size(), before.size());
}

} // namespace
