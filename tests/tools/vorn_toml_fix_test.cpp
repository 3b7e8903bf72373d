// vorn-toml fix as a program: what it writes, and where.
#include "support/file_content.h"
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::runTool;
using test::unreadable;
using test::usage;

const std::string emptyArray =
    ":1:5: error: an empty array cannot be expressed\n"
    "    1 | a= []\n"
    "      |     ^\n"
    "      = hint: Leave the key out instead, or put an element into the array.\n";

std::size_t filesIn(const test::TemporaryDirectory& directory)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator(directory.path("")))
    {
        ++count;
    }
    return count;
}

struct stat statusOf(const std::string& file)
{
    struct stat status = {};
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    return status;
}

TEST(VornTomlFix, RewritesFiles)
{
    const test::TemporaryDirectory directory;
    const std::string one = directory.write("one.toml", "a = 1");
    const std::string good = directory.write("good.toml", "a = 1\n");
    const ino_t inode = statusOf(good).st_ino;
    expectRun(runTool({"fix", one, good}), accepted, one + ": fixed\n" + good + ": unchanged\n",
              "");
    EXPECT_EQ(test::fileContent(one), "a = 1\n");
    EXPECT_EQ(test::fileContent(good), "a = 1\n");
    EXPECT_EQ(statusOf(good).st_ino, inode);
    EXPECT_EQ(filesIn(directory), 2U);
    expectRun(runTool({"fix", one}), accepted, one + ": unchanged\n", "");
}

TEST(VornTomlFix, ExplainsWhatItCannotExpress)
{
    const test::TemporaryDirectory directory;
    const std::string bad = directory.write("bad.toml", "a= []\ntrue = 1");
    const std::string one = directory.write("one.toml", "a = 1");
    const std::string wrong = directory.write("wrong.toml", "a = 1 b = 2\n");
    const std::string missing = directory.path("missing.toml");
    expectRun(runTool({"fix", bad, one, wrong}), rejected,
              bad + ": not fixed\n" + one + ": fixed\n" + wrong + ": not fixed\n",
              bad + emptyArray + wrong +
                  ":1:7: error: this is not TOML 1.0: expected the end of the line\n"
                  "    1 | a = 1 b = 2\n"
                  "      |       ^\n"
                  "      = hint: Only documents that are TOML 1.0 can be fixed. Correct this "
                  "first.\n");
    EXPECT_EQ(test::fileContent(bad), "a= []\ntrue = 1");
    EXPECT_EQ(test::fileContent(wrong), "a = 1 b = 2\n");
    expectRun(runTool({"fix", missing, bad}), unreadable, bad + ": not fixed\n",
              "vorn-toml: " + missing + ": No such file or directory\n" + bad + emptyArray);
}

TEST(VornTomlFix, ExplainsTwentyAndSaysThatThereAreMore)
{
    const test::ProgramRun run = runTool({"fix", "-"}, test::repeated("a = []\n", 100));
    EXPECT_EQ(run.status, rejected);
    EXPECT_EQ(run.standardOutput, "");
    EXPECT_NE(run.standardError.find("-:20:6: error: "), std::string::npos);
    EXPECT_EQ(run.standardError.find("-:21:6: error: "), std::string::npos);
    EXPECT_NE(run.standardError.find("-: there are more errors\n"), std::string::npos);
}

TEST(VornTomlFix, KeepsTheLibraryAndTheRuntimeSilent)
{
    expectRun(runTool({"fix", "-"}, "a = [1,]\n\xc1?\n"), accepted, "a = [1,]\n\xc1?\n", "");
    expectRun(runTool({"fix", "-"}, "a = [\n1\n]\n\xc1?\n"), rejected, "",
              "-:4:1: error: this is not TOML 1.0: bytes that are not UTF-8\n"
              "    4 | \\xC1?\n"
              "      | ^~~~\n"
              "      = hint: Only documents that are TOML 1.0 can be fixed. Correct this first.\n");
}

TEST(VornTomlFix, IsAFilterForStandardInput)
{
    expectRun(runTool({"fix", "-"}, "a = 1"), accepted, "a = 1\n", "");
    expectRun(runTool({"fix", "-"}, "a = 1\n"), accepted, "a = 1\n", "");
    expectRun(runTool({"fix", "-"}, "a= []\n"), rejected, "", '-' + emptyArray);
    expectRun(runTool({"fix", "-", "x.toml"}, "a = 1"), usage, "",
              "vorn-toml: fix takes - alone\n");
}

TEST(VornTomlFix, OnlyChecks)
{
    const test::TemporaryDirectory directory;
    const std::string one = directory.write("one.toml", "a = 1");
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "a= []\n");
    expectRun(runTool({"fix", "--check", good}), accepted, good + ": unchanged\n", "");
    expectRun(runTool({"fix", "--check", one, good, bad}), rejected,
              one + ": would change\n" + good + ": unchanged\n" + bad + ": not fixed\n",
              bad + emptyArray);
    expectRun(runTool({"fix", "--check", "-"}, "a = 1"), rejected, "-: would change\n", "");
    expectRun(runTool({"fix", "--check", "-"}, "a = 1\n"), accepted, "-: unchanged\n", "");
    EXPECT_EQ(test::fileContent(one), "a = 1");
}

TEST(VornTomlFix, PrintsDifferences)
{
    const test::TemporaryDirectory directory;
    const std::string one = directory.write("one.toml", "a = 1\r\ntrue = 1\r\n# c\r\nb = 2");
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string diff = "--- " + one + "\n+++ " + one +
                             "\n@@ -1,4 +1,4 @@\n a = 1\r\n-true = 1\r\n+\"true\" = 1\r\n # c\r\n"
                             "-b = 2\n\\ No newline at end of file\n+b = 2\r\n";
    expectRun(runTool({"fix", "--diff", good, one}), accepted, diff, "");
    expectRun(runTool({"fix", "--diff", "--check", good, one}), rejected, diff, "");
    expectRun(runTool({"fix", "--diff", "-"}, "a = 1\n"), accepted, "", "");
    EXPECT_EQ(test::fileContent(one), "a = 1\r\ntrue = 1\r\n# c\r\nb = 2");
}

TEST(VornTomlFix, DropsCommentsIfAsked)
{
    const std::string text = "a = 1 # \xf0\x9f\x98\x80\n";
    const test::ProgramRun run = runTool({"fix", "-"}, text);
    EXPECT_EQ(run.status, rejected);
    EXPECT_EQ(run.standardOutput, "");
    EXPECT_NE(run.standardError.find("-:1:9: error: a character above U+FFFF (U+1F600) cannot be "
                                     "expressed in a comment\n"),
              std::string::npos);
    EXPECT_NE(run.standardError.find("--drop-comments"), std::string::npos);
    expectRun(runTool({"fix", "--drop-comments", "-"}, text), accepted, "a = 1\n", "");
}

TEST(VornTomlFix, KeepsModeOwnerAndLinks)
{
    const test::TemporaryDirectory directory;
    const std::string file = directory.write("one.toml", "a = 1");
    const std::string link = directory.path("link.toml");
    ASSERT_EQ(symlink("one.toml", link.c_str()), 0);
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    if (geteuid() == 0)
    {
        ASSERT_EQ(chown(file.c_str(), 12, 34), 0);
    }
    const struct stat before = statusOf(file);
    expectRun(runTool({"fix", link}), accepted, link + ": fixed\n", "");
    const struct stat after = statusOf(file);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_NE(after.st_ino, before.st_ino);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(test::fileContent(file), "a = 1\n");
    EXPECT_EQ(filesIn(directory), 2U);
}

TEST(VornTomlFixWithLimits, SaysWhatItCannotWrite)
{
    // A limit of the shell's on the size of files stands for a full disk.
    const test::TemporaryDirectory directory;
    const std::string text = test::repeated("true = 1\n", 1000);
    const std::string file = directory.write("one.toml", text);
    const test::ProgramRun run = test::runProgram(
        {"/bin/sh", "-c", "trap '' XFSZ; ulimit -f 1; exec \"$0\" fix \"$1\"", VORN_TOML, file});
    expectRun(run, unreadable, "", "vorn-toml: " + file + ": File too large\n");
    EXPECT_EQ(test::fileContent(file), text);
    EXPECT_EQ(filesIn(directory), 1U);
}

TEST(VornTomlFix, WritesToFilesOnly)
{
    const test::TemporaryDirectory directory;
    const std::string pipe = directory.path("pipe");
    const test::ProgramRun run = test::runProgram(
        {"/bin/sh", "-c", "mkfifo \"$1\" && { printf 'a = 1' >\"$1\" & } && \"$0\" fix \"$1\"",
         VORN_TOML, pipe});
    expectRun(run, unreadable, "", "vorn-toml: " + pipe + ": Invalid argument\n");
    EXPECT_EQ(filesIn(directory), 1U);
}

TEST(VornTomlFix, RespectsFilesThatAreReadOnly)
{
    if (geteuid() == 0)
    {
        GTEST_SKIP() << "Root may write to all files.";
    }
    const test::TemporaryDirectory directory;
    const std::string file = directory.write("one.toml", "a = 1");
    ASSERT_EQ(chmod(file.c_str(), 0444), 0);
    expectRun(runTool({"fix", file}), unreadable, "",
              "vorn-toml: " + file + ": Permission denied\n");
    EXPECT_EQ(test::fileContent(file), "a = 1");
}

} // namespace
