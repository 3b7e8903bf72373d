// Runs of digits and of key characters.
#include <gtest/gtest.h>

#include "scan/character_run.h"

#include <cstddef>
#include <string>

#include "support/guarded_memory.h"

using namespace vorn::parsers::toml;

namespace
{

using Skip = const char* (*)(const char* at, const char* end);

// Every byte in every place of runs of every length, and at the very end of what can be read,
// is stopped at just as going byte by byte does.
void expectRuns(Skip skipRun, CharacterClass kind, const std::string& members)
{
    constexpr std::size_t longest = 3 * sizeof(PackedBytes) + 1;
    test::GuardedMemory memory(longest);
    for (std::size_t length = 0; length <= longest; ++length)
    {
        std::string text;
        for (std::size_t index = 0; index < length; ++index)
        {
            text += members[index * 7 % members.size()];
        }
        const char* const whole = memory.hold(text);
        EXPECT_EQ(skipRun(whole, memory.end()), memory.end()) << length;
        for (std::size_t place = 0; place < length; ++place)
        {
            for (int value = 0; value < 256; ++value)
            {
                std::string changed = text;
                changed[place] = static_cast<char>(value);
                const char* const begin = memory.hold(changed);
                ASSERT_EQ(skipRun(begin, memory.end()), skip(begin, memory.end(), kind))
                    << value << " at " << place << " of " << length;
            }
        }
    }
}

} // namespace

TEST(CharacterRun, ofDigitsEndsAtTheFirstOtherByte)
{
    expectRuns(skipDigits, digit, "0123456789");
}

TEST(CharacterRun, ofKeyCharactersEndsAtTheFirstOtherByte)
{
    expectRuns(skipKeyCharacters, keyCharacter,
               "azAZ09_-bcdefghijklmnopqrstuvwxyBCDEFGHIJKLMNOPQRSTUVWXY12345678");
}
