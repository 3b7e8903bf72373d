// The direct reader where memory is gone.  This program's operator new fails as told.
#include <gtest/gtest.h>

#include "direct/direct_reader.h"
#include "direct/record_entry.h"

#include <cstdlib>
#include <new>
#include <string>

#include "support/driver_log.h"
#include "support/event_recorder.h"
#include "support/reading.h"

using namespace test;
using vorn::parsers::toml::DirectReading;
using vorn::parsers::toml::maxShortText;
using vorn::parsers::toml::readDirectly;

namespace
{

int untilFailure = 0; // allocations; 0: none fails, or it has failed

// The `number`th allocation fails while this lives.
class FailingAllocation
{
public:
    explicit FailingAllocation(int number) { untilFailure = number; }
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation() { untilFailure = 0; }

    static bool hasFailed() { return untilFailure == 0; }
};

constexpr int maxAllocations = 3;

// Too large for what the reader has on the stack.
const std::string document = "a = [1, {b = '" + std::string(5000, 'c') + "'}]\n";

} // namespace

// The direct reader's own form; all others are the standard library's.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    const bool fails = untilFailure > 0 && --untilFailure == 0;
    return fails ? nullptr : std::malloc(size);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void* operator new[](std::size_t size)
{
    void* const memory = std::malloc(size);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    return memory;
}

TEST(DirectReaderMemory, thatIsMissingMeansNoCalls)
{
    int number = 1;
    for (;; ++number)
    {
        SCOPED_TRACE(number);
        EventRecorder visitor;
        const FailingAllocation failing(number);
        const DirectReading reading = readDirectly(document, visitor);
        if (!FailingAllocation::hasFailed())
        {
            EXPECT_EQ(reading, DirectReading::accepted);
            break;
        }
        EXPECT_EQ(reading, DirectReading::outOfMemory);
        EXPECT_EQ(visitor.events(), Events());
    }
    EXPECT_EQ(number - 1, maxAllocations);
}

TEST(DirectReaderMemory, isNotNeededForASmallDocument)
{
    std::string lines;
    while (lines.size() < 1990)
    {
        lines += "a=[1]\nb=1\n";
    }
    for (const std::string& small : {std::string("a = [1, {b = 'c'}]\n"), lines,
                                     "a = '" + std::string(maxShortText - 2, 'c') + "'\n"})
    {
        EventRecorder visitor;
        const FailingAllocation failing(1);
        EXPECT_EQ(readDirectly(small, visitor), DirectReading::accepted);
        EXPECT_FALSE(FailingAllocation::hasFailed());
    }
}

TEST(DirectReaderMemory, isNeededForALargeDocumentOrALongText)
{
    for (const std::string& large : {"a = 1\n#" + std::string(2040, 'c'),
                                     "a = '" + std::string(maxShortText - 1, 'c') + "'\n"})
    {
        EventRecorder visitor;
        const FailingAllocation failing(1);
        EXPECT_EQ(readDirectly(large, visitor), DirectReading::outOfMemory);
        EXPECT_EQ(visitor.events(), Events());
    }
}

// The recognisers, which would need far more, are not asked then.
TEST(DirectReaderMemory, thatIsMissingIsLogged)
{
    for (int number = 1;; ++number)
    {
        SCOPED_TRACE(number);
        const FailingAllocation failing(number);
        const Reading reading = read(document);
        if (!FailingAllocation::hasFailed())
        {
            break;
        }
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.events, Events());
        expectDriverLog(reading.lines,
                        {"Failed: input TOML is too large to diagnose (5018 bytes)"});
    }
}
