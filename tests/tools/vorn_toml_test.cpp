// vorn-toml as a program: what it prints for documents, and how it ends.
#include "support/example_files.h"
#include "support/file_content.h"
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace
{

using test::accepted;
using test::expectRun;
using test::joined;
using test::rejected;
using test::runTool;
using test::unreadable;
using test::usage;
using test::Words;

// The lines of a document that holds the one pair `key = 1`.
std::string pairEvents(const std::string& key)
{
    return "beginDocument\nbeginKeyValue\nvisitBareKey " + key +
           "\nvisitInteger 1\nendKeyValue\nendDocument\n";
}

TEST(VornTomlEvents, PrintsTheEventsOfTheExamples)
{
    for (const std::string& name : test::exampleNames())
    {
        SCOPED_TRACE(name);
        expectRun(runTool({"events", test::examplePath(name)}), accepted,
                  test::fileContent(test::exampleEventsPath(name)), "");
    }
}

TEST(VornTomlEvents, PrintsTheDocumentsInTheOrderOfTheArguments)
{
    const test::TemporaryDirectory directory;
    const std::string a = directory.write("a.toml", "a = 1\n");
    const std::string b = directory.write("b.toml", "b = 1\n");
    const std::string empty = directory.write("empty.toml", "");
    const std::string input = "in = 1\n";
    struct Case
    {
        Words files;
        std::string output;
    };
    const std::vector<Case> cases = {
        {{a}, pairEvents("a")},
        {{b, a}, pairEvents("b") + pairEvents("a")},
        {{"-"}, pairEvents("in")},
        {{a, "-", b}, pairEvents("a") + pairEvents("in") + pairEvents("b")},
        {{a, a}, pairEvents("a") + pairEvents("a")},
        {{empty}, "beginDocument\nendDocument\n"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(testing::PrintToString(c.files));
        expectRun(runTool(joined({"events"}, c.files), input), accepted, c.output, "");
    }
}

TEST(VornTomlEvents, EscapesTexts)
{
    struct Case
    {
        std::string value;
        std::string line;
    };
    const std::vector<Case> cases = {
        {R"("a\tb\\")", R"(visitBasicString "a\\tb\\\\")"},
        {"'a\tb'", R"(visitLiteralString 'a\tb')"},
        {"'a\rb'", R"(visitLiteralString 'a\rb')"},
        {"'''\na\r\n'''", R"(visitMultilineLiteralString '''\na\r\n''')"},
        {"\"\"\"a\\\n  b\"\"\"", R"(visitMultilineBasicString """a\\\n  b""")"},
        {"'\x01\x1b\x1f\x7f'", R"(visitLiteralString '\x01\x1B\x1F\x7F')"},
        {"'\xc3\xbc \xe2\x86\x92'", R"(visitLiteralString '\xC3\xBC \xE2\x86\x92')"},
        {R"(' !"#$%&()*+,-./0123456789:;<=>?@AZ[]^_`az{|}~')",
         R"(visitLiteralString ' !"#$%&()*+,-./0123456789:;<=>?@AZ[]^_`az{|}~')"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.line);
        expectRun(runTool({"events", "-"}, "a = " + c.value + '\n'), accepted,
                  "beginDocument\nbeginKeyValue\nvisitBareKey a\n" + c.line +
                      "\nendKeyValue\nendDocument\n",
                  "");
    }
    expectRun(runTool({"events", "-"}, "['\xc3\xbc\t']\n"), accepted,
              "beginDocument\nbeginTable\nvisitQuotedKey '\\xC3\\xBC\\t'\nendTable\nendDocument\n",
              "");
}

TEST(VornTomlEvents, PrintsAndLogsWhatCouldBeMadeOutOfARejectedDocument)
{
    const std::string begun = "beginDocument\nbeginKeyValue\nvisitBareKey a\nvisitInteger 1\n"
                              "endKeyValue\n";
    struct Case
    {
        std::string text;
        std::string output;
        Words messages; // functions and messages that are logged, in this order
    };
    const std::vector<Case> cases = {
        {"a = 1", begun, {"visitTomlTree: Failed to visit toml tree"}},
        {"a = 1\nb =\nc = 2\n",
         begun + "beginKeyValue\nvisitBareKey b\n",
         {R"(operator(): Invalid TOML: parser failure at: a=1\nb=\nc=2\n)",
          "visitTomlTree: Failed to visit toml tree"}},
        {"a = 1\n@\n[b]\n",
         begun + "beginTable\nvisitBareKey b\nendTable\nendDocument\n",
         {"operator(): Invalid TOML: lexer failure at: @",
          "visitTomlTree: Failed: input TOML has 1 syntax errors"}},
    };
    // The runtime prints lines of its own besides.
    const std::regex logLine("error vorn_parsers src/toml\\.cpp:[0-9]+ (.*)\n");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.text);
        const test::ProgramRun run = runTool({"events", "-"}, c.text);
        EXPECT_EQ(run.status, rejected);
        EXPECT_EQ(run.standardOutput, c.output);
        const std::string& error = run.standardError;
        Words messages;
        for (std::sregex_iterator line(error.begin(), error.end(), logLine), end; line != end;
             ++line)
        {
            messages.push_back(line->str(1));
        }
        EXPECT_EQ(messages, c.messages) << error;
    }
}

TEST(VornTomlCheck, PrintsOneLineADocument)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "a = []\n");
    struct Case
    {
        Words files;
        std::string input;
        int status;
        std::string output;
    };
    const std::vector<Case> cases = {
        {{good}, "", accepted, good + ": accepted\n"},
        {{bad}, "", rejected, bad + ": rejected\n"},
        {{"-"}, "a = 1\n", accepted, "-: accepted\n"},
        {{"-"}, "a = 1", rejected, "-: rejected\n"},
        {{"-"}, "", accepted, "-: accepted\n"},
        {{good, bad, good},
         "",
         rejected,
         good + ": accepted\n" + bad + ": rejected\n" + good +
             ": accepted\n3 files: 2 accepted, 1 rejected\n"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(testing::PrintToString(c.files) + " with " + c.input);
        const test::ProgramRun run = runTool(joined({"check"}, c.files), c.input);
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.standardOutput, c.output);
        EXPECT_EQ(run.standardError.empty(), c.status == accepted) << run.standardError;
    }
}

TEST(VornToml, SaysWhatCannotBeReadAndGoesOn)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string missing = directory.path("missing.toml");
    const std::string noSuchFile = "vorn-toml: " + missing + ": No such file or directory\n";
    const std::string isDirectory = "vorn-toml: " + directory.path(".") + ": Is a directory\n";
    struct Case
    {
        Words arguments;
        std::string output;
        std::string error;
    };
    const std::vector<Case> cases = {
        {{"events", missing}, "", noSuchFile},
        {{"values", missing}, "", noSuchFile},
        {{"check", missing}, "", noSuchFile},
        {{"tree", missing}, "", noSuchFile},
        {{"tokens", missing}, "", noSuchFile},
        {{"events", directory.path(".")}, "", isDirectory},
        {{"values", directory.path(".")}, "", isDirectory},
        {{"json", missing}, "", noSuchFile},
        {{"json", directory.path(".")}, "", isDirectory},
        {{"events", missing, good}, pairEvents("a"), noSuchFile},
        {{"check", good, missing, good},
         good + ": accepted\n" + good + ": accepted\n3 files: 2 accepted, 1 unreadable\n",
         noSuchFile},
        {{"tree", directory.path("."), missing}, "", isDirectory + noSuchFile},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        expectRun(runTool(c.arguments), unreadable, c.output, c.error);
    }
}

TEST(VornToml, EndsWithTheWorstStatus)
{
    const test::TemporaryDirectory directory;
    const std::string good = directory.write("good.toml", "a = 1\n");
    const std::string bad = directory.write("bad.toml", "a = 1");
    const std::string missing = directory.path("missing.toml");
    struct Case
    {
        Words files;
        int status;
    };
    const std::vector<Case> cases = {
        {{good, good}, accepted},      {{good, bad}, rejected},
        {{bad, good}, rejected},       {{missing, good}, unreadable},
        {{missing, bad}, unreadable},  {{bad, missing}, unreadable},
        {{good, missing}, unreadable}, {{bad, missing, good}, unreadable},
    };
    for (const std::string command : {"events", "values", "check", "tree", "tokens"})
    {
        for (const Case& c : cases)
        {
            const Words arguments = joined({command}, c.files);
            EXPECT_EQ(runTool(arguments).status, c.status) << testing::PrintToString(arguments);
        }
    }
}

TEST(VornToml, ReadsNothingWhenUsedWrongly)
{
    const std::string example = test::examplePath("network");
    const std::vector<Words> cases = {
        {},
        {"--bogus"},
        {"bogus"},
        {"bogus", example},
        {example},
        {"events"},
        {"values"},
        {"check"},
        {"tree"},
        {"tokens"},
        {"check", "--dot", example},
        {"check", "--color", "often", example},
        {"tree", "--json", example},
        {"events", "--bogus"},
        {"events", "--bogus", example},
        {"events", example, "--bogus"},
        {"values", example, "--bogus"},
        {"check", example, "--bogus"},
        {"--bogus", "check", example},
    };
    for (const Words& arguments : cases)
    {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const test::ProgramRun run = runTool(arguments);
        EXPECT_EQ(run.status, usage);
        EXPECT_EQ(run.standardOutput, "");
        EXPECT_NE(run.standardError.find("Run with --help for more information.\n"),
                  std::string::npos)
            << run.standardError;
    }
}

} // namespace
