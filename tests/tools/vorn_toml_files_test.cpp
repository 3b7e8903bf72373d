// vorn-toml check with many files: directories, threads, order.
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{

namespace fs = std::filesystem;

using test::accepted;
using test::expectRun;
using test::rejected;
using test::runTool;
using test::unreadable;

class VornTomlFiles : public testing::Test
{
protected:
    // Writes a file in a directory that is made.
    std::string write(const std::string& name, const std::string& text = "a = 1\n") const
    {
        fs::create_directories(fs::path(directory_.path(name)).parent_path());
        return directory_.write(name, text);
    }

    // What check says of the directory, without the directory's name.
    std::string said(const test::Words& words) const
    {
        const std::string start = directory_.path("");
        std::string text = runTool(test::joined({"check"}, words)).standardOutput;
        for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start))
        {
            text.erase(at, start.size());
        }
        return text;
    }

    const test::TemporaryDirectory directory_;
};

TEST_F(VornTomlFiles, FindsDocumentsBelowDirectories)
{
    for (const char* const name : {"b.toml", "a/z.toml", "a/b/c.toml", "a.toml", "a/.x.toml",
                                   "a/x.txt", "a/toml", ".git/g.toml", "a/.hidden/h.toml"})
    {
        write(name);
    }
    fs::create_directory_symlink("..", directory_.path("a/up"));
    fs::create_directory_symlink("a", directory_.path("other"));
    fs::create_symlink("../b.toml", directory_.path("a/link.toml"));
    fs::create_directories(directory_.path("d.toml"));
    EXPECT_EQ(said({directory_.path("")}),
              "a.toml: accepted\na/.x.toml: accepted\na/b/c.toml: accepted\na/link.toml: accepted\n"
              "a/z.toml: accepted\nb.toml: accepted\n6 files: 6 accepted\n");
    // What is named is read.
    EXPECT_EQ(
        said({directory_.path("a/x.txt"), directory_.path(".git"), directory_.path("b.toml")}),
        "a/x.txt: accepted\n.git/g.toml: accepted\nb.toml: accepted\n3 files: 3 accepted\n");
    EXPECT_EQ(said({directory_.path("a/b")}), "a/b/c.toml: accepted\n");
}

TEST_F(VornTomlFiles, SaysIfThereAreNoDocuments)
{
    expectRun(runTool({"check", directory_.path("")}), accepted, "",
              "vorn-toml: " + directory_.path("") +
                  ": there is no *.toml file in this directory\n");
}

TEST_F(VornTomlFiles, GoesOnAfterFilesThatCannotBeRead)
{
    const std::string a = write("a.toml");
    fs::create_symlink("nowhere", directory_.path("b.toml"));
    const std::string c = write("c.toml", "c = []\n");
    const test::ProgramRun run = runTool({"check", directory_.path("")});
    EXPECT_EQ(run.status, unreadable);
    EXPECT_EQ(run.standardOutput,
              a + ": accepted\n" + c +
                  ": rejected\n3 files: 1 accepted, 1 rejected, 1 unreadable\n");
    EXPECT_EQ(run.standardError.substr(0, run.standardError.find('\n') + 1),
              "vorn-toml: " + directory_.path("b.toml") + ": No such file or directory\n");
}

// Large and small files, accepted and rejected ones: whoever is first done, the order stays.
TEST_F(VornTomlFiles, KeepsTheOrderOfTheArguments)
{
    test::Words words = {"check"};
    std::string output;
    std::string error;
    for (int i = 0; i < 200; ++i)
    {
        const std::string number = std::to_string(i);
        const bool isBad = i % 3 == 0;
        const std::string lines = test::repeated("a = 1\n", i % 7 == 0 ? 20000 : 1);
        words.push_back(write(number + ".toml", isBad ? "x = []\n" + lines : lines));
        output += words.back() + (isBad ? ": rejected\n" : ": accepted\n");
        error += isBad ? words.back() + ":1:6: error: the array is empty\n"
                                        "    1 | x = []\n"
                                        "      |      ^\n"
                                        "      = hint: An array needs at least one element. Leave "
                                        "the key out instead.\n"
                       : "";
    }
    expectRun(runTool(words), rejected, output + "200 files: 133 accepted, 67 rejected\n", error);
}

// The first that is called so has all of it.
TEST_F(VornTomlFiles, ReadsStandardInputOnce)
{
    const std::string a = write("a.toml");
    const std::string input = test::repeated("a = 1\n", 300000) + "x = []\n";
    expectRun(runTool({"check", "--stdin-name=x", "-", "-", a, "-"}, input), rejected,
              "x: rejected\nx: accepted\n" + a +
                  ": accepted\nx: accepted\n4 files: 3 accepted, 1 rejected\n",
              "x:300001:6: error: the array is empty\n"
              "300001 | x = []\n"
              "       |      ^\n"
              "       = hint: An array needs at least one element. Leave the key out instead.\n");
}

} // namespace
