// The programs in examples/ on the configurations there, and how they end.
#include "examples/example_run.h"
#include "support/example_files.h"
#include "support/file_content.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

// The expected outputs stand beside the lists of events.
std::string expected(const std::string& file)
{
    return test::fileContent(std::string(VORN_EXAMPLE_EVENTS) + '/' + file);
}

TEST(ExamplePrograms, HaveAnExpectedOutputForEachConfiguration)
{
    std::vector<std::string> names = test::exampleNames();
    EXPECT_EQ(test::namesIn(VORN_EXAMPLE_EVENTS, ".json"), names);
    names.insert(names.begin(), "CMakeLists"); // stands there, too
    EXPECT_EQ(test::namesIn(VORN_EXAMPLE_EVENTS, ".txt"), names);
}

TEST(ExamplePrograms, TomlToJsonPrintsTheConfigurations)
{
    for (const std::string& name : test::exampleNames())
    {
        SCOPED_TRACE(name);
        const test::ProgramRun run = test::runOnExample(TOML_TO_JSON, name);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.standardOutput, expected(name + ".json"));
        EXPECT_EQ(run.standardError, "");
    }
}

// To it, the keys of the others are unknown.
TEST(ExamplePrograms, ConfigReaderPrintsTheNetworkAndWhatIsWrongWithTheOthers)
{
    for (const std::string& name : test::exampleNames())
    {
        SCOPED_TRACE(name);
        const test::ProgramRun run = test::runOnExample(CONFIG_READER, name);
        const bool right = name == "network";
        EXPECT_EQ(run.status, right ? 0 : 1);
        EXPECT_EQ(run.standardOutput, right ? expected(name + ".txt") : "");
        EXPECT_EQ(run.standardError, right ? "" : expected(name + ".txt"));
    }
}

TEST(ExamplePrograms, SayThatAFileCannotBeRead)
{
    for (const std::string program : {TOML_TO_JSON, CONFIG_READER})
    {
        for (const std::string file : {"/no/such.toml", "/"})
        {
            SCOPED_TRACE(program + ' ' + file);
            const test::ProgramRun run = test::runProgram({program, file});
            EXPECT_EQ(run.status, 1);
            EXPECT_EQ(run.standardOutput, "");
            EXPECT_EQ(run.standardError.find(file + ": cannot be read"), 0U) << run.standardError;
        }
    }
}

TEST(ExamplePrograms, SayHowTheyAreUsed)
{
    const std::string example = test::examplePath("network");
    struct Case
    {
        std::vector<std::string> words;
        std::string usage;
    };
    const std::vector<Case> cases = {
        {{TOML_TO_JSON}, "Usage: toml_to_json FILE\n"},
        {{TOML_TO_JSON, example, example}, "Usage: toml_to_json FILE\n"},
        {{CONFIG_READER}, "Usage: config_reader FILE | --json-schema\n"},
        {{CONFIG_READER, example, example}, "Usage: config_reader FILE | --json-schema\n"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(testing::PrintToString(c.words));
        const test::ProgramRun run = test::runProgram(c.words);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.standardOutput, "");
        EXPECT_EQ(run.standardError, c.usage);
    }
}

} // namespace
