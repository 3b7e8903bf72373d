// The memory that a document may need, and whether it is there.
#include <gtest/gtest.h>

#include "pipeline/memory_need.h"

#include <antlr3.h>

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <limits>
#include <string>
#include <vector>

using vorn::parsers::toml::isMemoryLeft;
using vorn::parsers::toml::memoryForChecking;
using vorn::parsers::toml::memoryForLexing;
using vorn::parsers::toml::memoryForReading;

namespace
{

constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
constexpr std::size_t megabyte = 1024 * 1024;

// From nothing to what no document has.
const std::vector<std::size_t> amounts = {0,        1,        10,           1000,     1'000'000,
                                          most / 9, most / 2, most - 1'000, most - 1, most};

struct AddressSpace
{
    std::size_t mapped = 0;
    std::size_t resident = 0;
};

AddressSpace addressSpace()
{
    AddressSpace pages;
    std::ifstream("/proc/self/statm") >> pages.mapped >> pages.resident;
    const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return {pages.mapped * size, pages.resident * size};
}

// Lets this process have no more than this beyond what it has.
void limitMemory(std::size_t further)
{
    const rlim_t all = addressSpace().mapped + further;
    const rlimit limits = {all, all};
    if (setrlimit(RLIMIT_AS, &limits) != 0)
    {
        _exit(2);
    }
}

// Ends a process of its own: 0 if both results are right under a limit.
[[noreturn]] void askWithLimit(std::size_t further, std::size_t little, std::size_t much)
{
    limitMemory(further);
    const bool right = isMemoryLeft(little) && !isMemoryLeft(much) && isMemoryLeft(little);
    _exit(right ? 0 : 1);
}

} // namespace

TEST(MemoryNeed, ofADocumentGrowsWithAllThatItHas)
{
    for (const std::size_t size : {0u, 100u, 1'000'000u})
    {
        EXPECT_GT(memoryForLexing(size + 1), memoryForLexing(size));
        for (const std::size_t count : {0u, 100u, 1'000'000u})
        {
            const std::size_t need = memoryForReading(size, count, count);
            EXPECT_GT(memoryForReading(size + 1, count, count), need);
            EXPECT_GT(memoryForReading(size, count + 1, count), need);
            EXPECT_GT(memoryForReading(size, count, count + 1), need);
            EXPECT_GE(need, memoryForLexing(size));
        }
    }
}

TEST(MemoryNeed, growsByAnAmountForEachByteTokenAndBracket)
{
    const std::size_t none = memoryForReading(0, 0, 0);
    for (const std::size_t count : {7u, 1'000u})
    {
        EXPECT_EQ(memoryForLexing(count) - memoryForLexing(0), count);
        EXPECT_EQ(memoryForReading(count, 0, 0) - none, count * (memoryForReading(1, 0, 0) - none));
        EXPECT_EQ(memoryForReading(0, count, 0) - none, count * (memoryForReading(0, 1, 0) - none));
        EXPECT_EQ(memoryForReading(0, 0, count) - none, count * (memoryForReading(0, 0, 1) - none));
    }
}

TEST(MemoryNeed, ofACheckGrowsWithWhatTheParserLists)
{
    for (const std::size_t count : {0u, 1u, 100u})
    {
        EXPECT_EQ(memoryForChecking(count, 0, count, 0), memoryForReading(count, 0, count));
        const std::size_t lists =
            memoryForChecking(count, 0, count, count) - memoryForChecking(count, 0, count, 0);
        // Each is in a list that is copied to one of twice the length.
        EXPECT_EQ(lists, count * 3 * 2 * sizeof(void*));
        // One may be missing before each token.
        EXPECT_GE(memoryForChecking(count, count, 0, 0) - memoryForChecking(count, 0, 0, 0),
                  count * (sizeof(ANTLR3_COMMON_TOKEN) + sizeof(ANTLR3_STRING)));
    }
}

TEST(MemoryNeed, isTheLargestNumberWhereItIsLarger)
{
    EXPECT_EQ(memoryForLexing(most), most);
    EXPECT_EQ(memoryForLexing(most - 1000), most);
    for (const std::size_t large : {most / 8, most / 2, most - 1, most})
    {
        EXPECT_EQ(memoryForReading(large, 0, 0), most);
        EXPECT_EQ(memoryForReading(0, large, 0), most);
        EXPECT_EQ(memoryForReading(0, 0, large), most);
        EXPECT_EQ(memoryForReading(large, large, large), most);
    }
    const std::size_t none = memoryForReading(0, 0, 0);
    const std::size_t byte = memoryForReading(1, 0, 0) - none;
    const std::size_t token = memoryForReading(0, 1, 0) - none;
    const std::size_t bracket = memoryForReading(0, 0, 1) - none;
    // The first that do not fit: what is left of the products is little.
    EXPECT_EQ(memoryForReading(most / byte + 1, 0, 0), most);
    EXPECT_EQ(memoryForReading(0, most / token + 1, 0), most);
    EXPECT_EQ(memoryForReading(0, 0, most / bracket + 1), most);
    // Each of them fits, but not all together.
    const std::size_t third = most / 3;
    EXPECT_LT(memoryForReading(third / byte, third / token, 0), most);
    EXPECT_EQ(memoryForReading(third / byte, third / token, third / bracket), most);
}

TEST(MemoryNeed, neverBecomesLessWhereItNoLongerFits)
{
    for (std::size_t index = 1; index < amounts.size(); ++index)
    {
        const std::size_t less = amounts[index - 1];
        const std::size_t more = amounts[index];
        EXPECT_LE(memoryForLexing(less), memoryForLexing(more)) << more;
        for (const std::size_t other : amounts)
        {
            EXPECT_LE(memoryForReading(less, other, other), memoryForReading(more, other, other));
            EXPECT_LE(memoryForReading(other, less, other), memoryForReading(other, more, other));
            EXPECT_LE(memoryForReading(other, other, less), memoryForReading(other, other, more));
        }
    }
}

TEST(MemoryLeft, isEnoughForLittle)
{
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, megabyte})
    {
        EXPECT_TRUE(isMemoryLeft(size)) << size;
    }
}

TEST(MemoryLeft, isNeverEnoughForAllThatCanBeCounted)
{
    EXPECT_FALSE(isMemoryLeft(most));
}

TEST(MemoryLeft, isWhatTheLimitsOfTheProcessLeave)
{
    EXPECT_EXIT(askWithLimit(64 * megabyte, 60 * megabyte, 65 * megabyte),
                testing::ExitedWithCode(0), "");
    EXPECT_EXIT(askWithLimit(400 * megabyte, 390 * megabyte, 401 * megabyte),
                testing::ExitedWithCode(0), "");
    EXPECT_EXIT(askWithLimit(0, 0, 1), testing::ExitedWithCode(0), "");
}

TEST(MemoryLeft, isNotTakenByAsking)
{
    const AddressSpace before = addressSpace();
    for (int count = 0; count < 1000; ++count)
    {
        EXPECT_TRUE(isMemoryLeft(100 * megabyte));
    }
    EXPECT_FALSE(isMemoryLeft(most));
    const AddressSpace after = addressSpace();
    EXPECT_LT(after.mapped, before.mapped + 100 * megabyte);
    EXPECT_LT(after.resident, before.resident + 10 * megabyte);
}
