// UTF-8: every sequence of bytes, beside the forms that code points have.
#include <gtest/gtest.h>

#include "scan/utf8.h"

#include <cstdint>
#include <string>
#include <vector>

#include "support/guarded_memory.h"
#include "support/utf8.h"

using namespace vorn::parsers::toml;

namespace
{

char byte(unsigned value)
{
    return static_cast<char>(value);
}

// The code point that the bits of a sequence stand for, by the number of leading ones of
// its first byte.
std::uint32_t codeOf(const std::string& sequence)
{
    std::uint32_t code = static_cast<unsigned char>(sequence[0]) & (0x7FU >> sequence.size());
    for (std::size_t index = 1; index < sequence.size(); ++index)
    {
        code = code << 6 | (static_cast<unsigned char>(sequence[index]) & 0x3FU);
    }
    return code;
}

// Whether a sequence is the form that a code point from U+0080 up to `last` has, which is none
// of a surrogate.
bool isFormOfCode(const std::string& sequence, std::uint32_t last)
{
    const std::uint32_t code = codeOf(sequence);
    return code >= 0x80 && code <= last && (code < 0xD800 || code > 0xDFFF) &&
           test::utf8(code) == sequence;
}

// The length of the form that the bytes start with; 0 if they start with none.
std::ptrdiff_t expectedLength(const std::string& bytes, std::uint32_t last)
{
    for (std::size_t length = 2; length <= bytes.size(); ++length)
    {
        if (isFormOfCode(bytes.substr(0, length), last))
        {
            return static_cast<std::ptrdiff_t>(length);
        }
    }
    return 0;
}

std::ptrdiff_t foundLength(const char* begin, const char* end, Utf8Range range)
{
    const char* const stop = sequenceEnd(begin, end, range);
    return stop != nullptr ? stop - begin : 0;
}

// Checks the bytes at the end of what can be read.
bool isRecognisedRightly(test::GuardedMemory& memory, const std::string& bytes)
{
    const char* const begin = memory.hold(bytes);
    const bool right =
        foundLength(begin, memory.end(), Utf8Range::upToFFFF) == expectedLength(bytes, 0xFFFF) &&
        foundLength(begin, memory.end(), Utf8Range::whole) == expectedLength(bytes, 0x10FFFF);
    EXPECT_TRUE(right) << testing::PrintToString(bytes);
    return right;
}

// The first and the last byte of every kind that is told apart.
const std::vector<unsigned> tellingBytes = {0x00, 0x7F, 0x80, 0xBF, 0xC0, 0xFF};

} // namespace

TEST(Utf8, hasSequencesWhereCodePointsHaveThem)
{
    test::GuardedMemory memory(4);
    for (unsigned first = 0x80; first <= 0xFF; ++first)
    {
        ASSERT_TRUE(isRecognisedRightly(memory, {byte(first)}));
        for (unsigned second = 0; second <= 0xFF; ++second)
        {
            const std::string two = {byte(first), byte(second)};
            ASSERT_TRUE(isRecognisedRightly(memory, two));
            for (const unsigned third : tellingBytes)
            {
                const std::string three = two + byte(third);
                ASSERT_TRUE(isRecognisedRightly(memory, three));
                for (const unsigned fourth : tellingBytes)
                {
                    ASSERT_TRUE(isRecognisedRightly(memory, three + byte(fourth)));
                }
            }
        }
    }
}

TEST(Utf8, hasASequenceForEveryCodePoint)
{
    for (std::uint32_t code = 0x80; code <= 0x10FFFF; ++code)
    {
        const std::string form = test::utf8(code);
        const char* const end = form.data() + form.size();
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        ASSERT_EQ(sequenceEnd(form.data(), end, Utf8Range::whole), surrogate ? nullptr : end)
            << code;
        ASSERT_EQ(sequenceEnd(form.data(), end, Utf8Range::upToFFFF),
                  surrogate || code > 0xFFFF ? nullptr : end)
            << code;
    }
}

TEST(Utf8, tellsTheKindsOfBytesApart)
{
    for (unsigned value = 0; value <= 0xFF; ++value)
    {
        EXPECT_EQ(isAscii(byte(value)), value <= 0x7F) << value;
        EXPECT_EQ(isContinuation(byte(value)), value >= 0x80 && value <= 0xBF) << value;
    }
}

TEST(Utf8, hasAByteOrderMarkAtTheStartOnly)
{
    const std::string mark = test::utf8(0xFEFF);
    EXPECT_EQ(byteOrderMarkLength(mark), 3U);
    EXPECT_EQ(byteOrderMarkLength(mark + mark), 3U);
    EXPECT_EQ(byteOrderMarkLength(mark + "a = 1\n"), 3U);
    for (const std::string& text : {std::string(), mark.substr(0, 1), mark.substr(0, 2),
                                    mark.substr(0, 2) + "a", ' ' + mark, mark.substr(1)})
    {
        EXPECT_EQ(byteOrderMarkLength(text), 0U) << testing::PrintToString(text);
    }
}
