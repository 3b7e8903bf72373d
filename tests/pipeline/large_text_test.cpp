// Texts at the limit of what the runtime can count.  This program wraps the creation of
// the runtime's input stream; nothing of these texts is read.
#include <gtest/gtest.h>

#include <antlr3.h>

#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "support/driver_log.h"
#include "support/reading.h"

namespace
{

std::vector<std::uint64_t> requestedSizes;

// A text whose memory is never touched, so that its size costs nothing.
std::string untouchedText(std::size_t size)
{
    std::string text;
    text.resize_and_overwrite(size, [](char*, std::size_t length) { return length; });
    return text;
}

void expectRefused(const std::string& text, const std::vector<std::uint64_t>& sizes)
{
    requestedSizes.clear();
    const test::Reading reading = test::read(text);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, test::Events());
    test::expectDriverLog(reading.lines, {"Failed to create toml string stream"});
    EXPECT_EQ(requestedSizes, sizes);
}

} // namespace

extern "C" pANTLR3_INPUT_STREAM __wrap_antlr3StringStreamNew(pANTLR3_UINT8, ANTLR3_UINT32,
                                                             ANTLR3_UINT32 size, pANTLR3_UINT8)
{
    requestedSizes.push_back(size);
    return nullptr;
}

TEST(LargeText, ofFourGibibytesIsRefusedWithoutAStream)
{
    constexpr std::uint64_t limit = std::uint64_t{1} << 32;
    if (sizeof(std::size_t) < sizeof(limit))
    {
        GTEST_SKIP() << "no text is that large here";
    }
    try
    {
        expectRefused(untouchedText(static_cast<std::size_t>(limit)), {});
        expectRefused(untouchedText(static_cast<std::size_t>(limit + 10)), {});
        // One byte less is asked for as it is; here the stream fails all the same.
        expectRefused(untouchedText(static_cast<std::size_t>(limit - 1)), {limit - 1});
    }
    catch (const std::bad_alloc&)
    {
        GTEST_SKIP() << "there is too little memory for a text of 4 GiB";
    }
}
