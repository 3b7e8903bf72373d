// Configurations in one file and in several.
#include "every_member.h"
#include "listener_client.h"
#include "told_problems.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using toml::FilePath;

std::string toldOf(const std::vector<FilePath>& files, listener::Config& config)
{
    return test::told(toml::readConfigs(files, listener::configSchema(), config));
}

} // namespace

TEST(ReadConfigFile, namesTheFileInProblems)
{
    const test::TemporaryDirectory directory;
    const std::string file = directory.write("app.toml", "name = 'a'\n[dns]\ntimeout = 99\n");
    listener::Config config;
    const auto problems = toml::readConfig(FilePath(file), listener::configSchema(), config);
    EXPECT_EQ(test::told(problems), file + ":3:11: dns.timeout: 99 is not in 0.1 to 60\n");
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].file, file);
    EXPECT_EQ(problems[0].place.offset, 27U);
}

TEST(ReadConfigFile, tellsWhyAFileCannotBeRead)
{
    const test::TemporaryDirectory directory;
    const std::string none = directory.path("none.toml");
    listener::Config config;
    EXPECT_EQ(test::told(toml::readConfig(FilePath(none), listener::configSchema(), config)),
              none + ": cannot be read: No such file or directory\n");
    const std::string folder = directory.path("");
    EXPECT_EQ(test::told(toml::readConfig(FilePath(folder), listener::configSchema(), config)),
              folder + ": cannot be read: Is a directory\n");
}

TEST(ReadConfigFile, isNotReadByAWrongSchema)
{
    struct Wrong
    {
        int value = 0;
    };
    Wrong config;
    const auto schema = toml::Schema<Wrong>().optional("a b", &Wrong::value);
    EXPECT_EQ(test::told(toml::readConfig(FilePath("none.toml"), schema, config)),
              "the schema is wrong: 'a b' is not a key\n");
}

TEST(ReadConfigs, letsLaterFilesOverride)
{
    const test::TemporaryDirectory directory;
    std::filesystem::create_directory(directory.path("app.d"));
    const std::vector<FilePath> files{
        FilePath(directory.write("default.toml",
                                 "name = 'a'\nlimits = {files = 1, memory = 2}\n"
                                 "[dns]\ntimeout = 3\nsearch = ['x', 'y']\n"
                                 "[[listener]]\nport = 1\n[[listener]]\nport = 2\n")),
        FilePath(directory.path("missing.toml")),
        FilePath(directory.path("app.d")),
        FilePath(directory.path("missing.d")),
    };
    directory.write("app.d/20.toml", "dns.search = ['z']\nlimits.files = 20\n");
    directory.write("app.d/10.toml", "name = 'b'\nlimits.files = 10\nlimits.other = 10\n"
                                     "[[listener]]\nport = 3\n");
    directory.write("app.d/30.txt", "no TOML");
    directory.write("app.d/.toml", "no TOML");
    listener::Config config;
    EXPECT_EQ(toldOf(files, config), "");
    EXPECT_EQ(config.name, "b");
    EXPECT_EQ(config.timeout, 3.0);
    EXPECT_EQ(config.search, std::vector<std::string>{"z"});
    EXPECT_EQ(config.limits,
              (std::map<std::string, long>{{"files", 20}, {"memory", 2}, {"other", 10}}));
    ASSERT_EQ(config.listeners.size(), 1U);
    EXPECT_EQ(config.listeners[0].port, 3);
}

TEST(ReadConfigs, wantsARequiredKeyInOneOfTheFiles)
{
    const test::TemporaryDirectory directory;
    const FilePath one(directory.write("1.toml", "[dns]\ntimeout = 1\n"));
    const FilePath two(directory.write("2.toml", "name = 'a'\n"));
    listener::Config config;
    EXPECT_EQ(toldOf({one, two}, config), "");
    EXPECT_EQ(toldOf({one}, config), one.string() + ":1:1: name: is missing\n");
    const FilePath none(directory.path("none"));
    EXPECT_EQ(toldOf({none}, config), none.string() + ":1:1: name: is missing\n");
    EXPECT_EQ(toldOf({}, config), "1:1: name: is missing\n");
}

TEST(ReadConfigs, tellsTheProblemsOfAllFiles)
{
    const test::TemporaryDirectory directory;
    const FilePath one(directory.write("1.toml", "nam = 1\n"));
    const FilePath two(directory.write("2.toml", "x\n"));
    const FilePath three(directory.write("3.toml", "[dns]\ntimeout = 99\n"));
    listener::Config config;
    EXPECT_EQ(toldOf({one, two, three}, config),
              one.string() + ":1:1: nam: unknown key (did you mean name?)\n" + two.string() +
                  ":1:2: expected '=' after the key, found the end of the line (A line contains a "
                  "pair, key = value, or a header, [key].)\n" +
                  three.string() + ":2:11: dns.timeout: 99 is not in 0.1 to 60\n");
    EXPECT_EQ(config.name, "");
}

TEST(ReadConfigs, fillsAStructFromTablesInSeveralFiles)
{
    const test::TemporaryDirectory directory;
    const FilePath one(directory.write("1.toml", "point = {y = 1}\n[named.a]\nbegin = 5\n"));
    const FilePath two(directory.write("2.toml", "[point]\nx = 2\n[named.a]\nend = 6\n"));
    test::EveryMember config;
    EXPECT_EQ(test::told(toml::readConfigs({one, two}, test::everySchema(), config)), "");
    EXPECT_EQ(config.center->x, 2.0);
    EXPECT_EQ(config.center->y, 1.0);
    EXPECT_EQ(config.named.at("a").begin, 5);
    EXPECT_EQ(config.named.at("a").end, 6);
}

// What a later file has is what a check is about.
TEST(ReadConfigs, tellsThePlaceThatOverrides)
{
    const test::TemporaryDirectory directory;
    const FilePath one(directory.write("1.toml", "[named.a]\nbegin = 1\nend = 8\n"));
    const FilePath two(directory.write("2.toml", "[named.a]\nend = 0\n"));
    test::EveryMember config;
    EXPECT_EQ(test::told(toml::readConfigs({one, two}, test::everySchema(), config)),
              two.string() + ":2:1: named.a.end, named.a.begin: end is before begin\n");
}
