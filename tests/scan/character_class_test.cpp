// Classes of bytes.
#include <gtest/gtest.h>

#include "scan/character_class.h"

#include <string>

using namespace vorn::parsers::toml;

namespace
{

struct ClassOfBytes
{
    const char* name;
    CharacterClass kind;
    std::string members;
};

const std::string digits = "0123456789";
const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

const ClassOfBytes classes[] = {
    {"binary digits", binaryDigit, "01"},
    {"octal digits", octalDigit, "01234567"},
    {"digits", digit, digits},
    {"hexadecimal digits", hexDigit, digits + "ABCDEFabcdef"},
    {"letters", letter, letters},
    {"key characters", keyCharacter, digits + letters + "_-"},
    {"blanks", blank, " \t"},
    {"what is skipped", skipped, " \t#"},
    {"starts of values", valueStart, digits + letters + "_-+\"'[{"},
    {"starts of keywords", keywordStart, "tfin"},
};

} // namespace

TEST(CharacterClass, hasItsMembersOnly)
{
    for (const auto& [name, kind, members] : classes)
    {
        SCOPED_TRACE(name);
        for (int value = 0; value < 256; ++value)
        {
            const char byte = static_cast<char>(value);
            EXPECT_EQ(is(byte, kind), members.find(byte) != std::string::npos) << value;
        }
    }
}

TEST(CharacterClass, isSkippedUpToTheFirstOtherByteOrTheEnd)
{
    for (const auto& [name, kind, members] : classes)
    {
        SCOPED_TRACE(name);
        for (const char* const after : {"", "!", "\xff", "!0a "})
        {
            const std::string text = members + after;
            const char* const end = text.data() + text.size();
            EXPECT_EQ(skip(text.data(), end, kind) - text.data(),
                      static_cast<std::ptrdiff_t>(members.size()))
                << after;
            EXPECT_EQ(skip(text.data(), text.data() + 1, kind), text.data() + 1);
            EXPECT_EQ(skip(text.data(), text.data(), kind), text.data());
            EXPECT_EQ(skip(end, end, kind), end);
        }
    }
}
