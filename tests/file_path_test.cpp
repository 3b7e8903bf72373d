// The characters of a path, which may be of a client's own type.
#include <gtest/gtest.h>

#include "file_path.h"

#include <string>

using vorn::parsers::toml::charactersOf;
using vorn::parsers::toml::FilePath;

TEST(FilePath, hasTheCharactersThatItWasGiven)
{
    const std::string name = "/etc/a b.toml";
    EXPECT_STREQ(charactersOf(FilePath(name)), name.c_str());
    EXPECT_STREQ(charactersOf(FilePath("")), "");
}

// The library uses nothing of the type but its first member.
TEST(FilePath, mayBeAnotherTypeThatStartsWithAPointer)
{
    struct Path
    {
        const char* characters = "/etc/other.toml";
        std::string more = "not looked at, and larger than the library's own type";
    };
    const Path path;
    EXPECT_EQ(charactersOf(reinterpret_cast<const FilePath&>(path)), path.characters);
}
