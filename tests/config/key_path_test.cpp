#include "config/key_path.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace
{

using namespace vorn::parsers::toml::config;
using Names = std::vector<std::string>;

} // namespace

TEST(KeyPath, hasNames)
{
    EXPECT_EQ(namesIn("port"), Names{"port"});
    EXPECT_EQ(namesIn("a.b-2.C_3"), (Names{"a", "b-2", "C_3"}));
    EXPECT_EQ(namesIn(R"(link."5 GHz".'a\b')"), (Names{"link", "5 GHz", R"(a\b)"}));
    EXPECT_EQ(namesIn(R"("a\"b\t.c".d)"), (Names{"a\"b\t.c", "d"}));
    EXPECT_EQ(namesIn("\"\".''"), (Names{"", ""}));
}

TEST(KeyPath, isNothingElse)
{
    for (const char* const path :
         {"", ".", "a.", ".a", "a..b", "a b", "a .b", " a", "a\"b\"", "\"a\"b", "\"a", "'a",
          "\"a\\\"", "'a\"", R"("\x")", R"("\uD800")", "a\n", "\xc3\xa9", "a[0]"})
    {
        EXPECT_EQ(namesIn(path), std::nullopt) << path;
    }
}

TEST(KeyPath, quotesNamesThatNeedIt)
{
    for (const char* const name : {"a", "Zz_9-", "_", "truely", "infinite", "a-"})
    {
        EXPECT_EQ(keyOf(name), name);
    }
    for (const char* const name : {"", "a b", "a.b", "-a", "5", "0a", "9", "true", "false", "inf",
                                   "nan", "\xc3\xa9", "a@", "a[", "a`", "a{", "a/", "a:"})
    {
        EXPECT_EQ(keyOf(name), '"' + std::string(name) + '"');
    }
    EXPECT_EQ(keyOf("a\"b\n"), R"("a\"b\n")");
}

TEST(KeyPath, growsByKeys)
{
    std::string path;
    addKey(path, "a");
    EXPECT_EQ(path, "a");
    addKey(path, "b c");
    addKey(path, "d");
    EXPECT_EQ(path, "a.\"b c\".d");
    EXPECT_EQ(namesIn(path), (Names{"a", "b c", "d"}));
}
