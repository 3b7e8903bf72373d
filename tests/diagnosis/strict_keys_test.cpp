// The parts of keys.
#include "diagnosis/strict_keys.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace vorn::parsers::toml::diagnosis;

namespace
{

std::vector<std::string> partsOf(std::string_view key)
{
    std::vector<std::string> found;
    KeyParts parts(key);
    found.emplace_back(parts.part());
    while (!parts.isLast())
    {
        parts.next();
        found.emplace_back(parts.part());
    }
    return found;
}

using Parts = std::vector<std::string>;

std::string name(std::string_view part)
{
    std::string buffer = "what was there before";
    return std::string(nameOf(part, buffer));
}

} // namespace

TEST(StrictKeys, parts)
{
    EXPECT_EQ(partsOf("a"), Parts{"a"});
    EXPECT_EQ(partsOf("-_9z.b"), (Parts{"-_9z", "b"}));
    EXPECT_EQ(partsOf("a . \"b.c\"\t.'d\".e'.f"), (Parts{"a", "\"b.c\"", "'d\".e'", "f"}));
    EXPECT_EQ(partsOf(R"("a\"b".'')"), (Parts{R"("a\"b")", "''"}));
}

TEST(StrictKeys, aPartEndsBeforeWhatFollows)
{
    const std::string_view text = "key = 1\n\"a b\"=2\n";
    EXPECT_EQ(keyPart(text.data(), text.data() + text.size()), "key");
    EXPECT_EQ(keyPart(text.data() + 8, text.data() + text.size()), "\"a b\"");
}

TEST(StrictKeys, names)
{
    EXPECT_EQ(name("a-b"), "a-b");
    EXPECT_EQ(name("\"a b\""), "a b");
    EXPECT_EQ(name("'a\\b'"), "a\\b");
    EXPECT_EQ(name("\"\""), "");
    EXPECT_EQ(name("''"), "");
    EXPECT_EQ(name(R"("\u0061\U00000062c\t\"\\")"), "abc\t\"\\");
    EXPECT_EQ(name(R"("x\u00e9y")"), "x\xC3\xA9y");
    EXPECT_EQ(name(R"("\'")"), "'");
}
