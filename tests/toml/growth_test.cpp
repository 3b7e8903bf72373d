// What documents that are wrong cost, with the logger left out: time and memory grow with
// their size, and not with its square.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/child_reading.h"
#include "support/large_documents.h"

using test::ChildReading;
using test::enclosed;
using test::readInChild;
using test::repeated;

namespace
{

constexpr long megabyte = 1024; // in kilobytes

// Documents of about `size` bytes.
std::vector<std::string> documents(std::size_t size)
{
    const auto nested = [size](const std::string& before, const std::string& opening,
                               const std::string& innermost, const std::string& closing)
    {
        const std::size_t levels = size / (opening.size() + closing.size());
        return enclosed(before, opening, levels, enclosed(innermost, closing, levels, "\n"));
    };
    return {
        repeated("a 1\n", size / 4),
        repeated("a=[]\n", size / 5),
        repeated("a=[1 2]\n", size / 8),
        repeated("[[a]\n", size / 5),
        repeated("a.=1\n", size / 5),
        repeated("a=[\n", size / 4),
        repeated("a=1979-05-27 x\n", size / 15),
        repeated("@", size),
        repeated("'\n", size / 2),
        // Once, each string in a run of quotes went over what was left of the run.
        repeated("\"", size),
        repeated("'", size),
        repeated("[[a]]\nb=1\n", size / 10) + "@",
        enclosed("a", ".", size, "=1\n"),
        enclosed("a", ".b", size / 2, "=1\n@"),
        enclosed("a=[", "b,", size / 2, "1]\n"),
        enclosed("a=[", "1 2,", size / 4, "1]\n"),
        enclosed("a=[", "1,", size / 2, "1]\n@"),
        enclosed("a=", "[", size, ""),
        enclosed("a=", "{a=", size / 3, ""),
        enclosed("a=", "[},", size / 3, ""),
        enclosed("a=", "[1\n],", size / 5, ""),
        nested("a=", "[[],", "1", "]"),
        nested("a=[[],", "[", "1", "]]"),
        nested("a=[[],", "{a=", "1", "}]"),
        // What one error takes from a long token or tree is not kept for the next one.
        enclosed("a=['" + std::string(size, 'x') + "' 2]\n", "a=[1 2]\n", size / 160, ""),
        enclosed("a=[[],[" + repeated("1,", size) + "1]]\n", "b=[[],[1]]\n", size / 240, ""),
    };
}

// The quieter of two readings.  The stack has room for the deepest of the documents.
ChildReading readTwice(const std::string& text)
{
    const auto once = [&text]
    {
        const ChildReading reading = readInChild(text, {160u << 20, 0, false});
        EXPECT_EQ(reading.signal, 0);
        EXPECT_FALSE(reading.accepted);
        EXPECT_GT(reading.calls, 0u);
        return reading;
    };
    const ChildReading first = once();
    const ChildReading second = once();
    return first.seconds < second.seconds ? first : second;
}

} // namespace

TEST(TomlGrowth, isThatOfTheDocument)
{
    constexpr std::size_t size = 10'000;
    constexpr int factor = 8;
    const long baseline = readInChild("@").peakKilobytes;
    const std::vector<std::string> small = documents(size);
    const std::vector<std::string> large = documents(factor * size);
    for (std::size_t index = 0; index < small.size(); index += VORN_TEST_STEP)
    {
        SCOPED_TRACE(testing::PrintToString(small[index].substr(0, 20)));
        const ChildReading one = readTwice(small[index]);
        const ChildReading many = readTwice(large[index]);
        // The square of the factor would be 64.
        EXPECT_LT(many.seconds, 3 * factor * one.seconds + 0.005) << one.seconds << " seconds";
        EXPECT_LT(many.peakKilobytes - baseline,
                  factor * (one.peakKilobytes - baseline) * 3 / 2 + 4 * megabyte)
            << one.peakKilobytes - baseline << " kilobytes for one";
    }
}

TEST(TomlGrowth, leavesHostileDocumentsSmall)
{
    for (const std::string& text : {
             enclosed("a", ".", 4000, "=1"),
             repeated("a 1\n", 4000),
             enclosed("a=", "[", 12000, ""),
             enclosed("a=", "{a=", 12000, ""),
             repeated("[", 12000),
             repeated("{a=", 12000),
             repeated("@", 1'000'000),
             enclosed("a=\"", "x", 1'000'000, "\n"),
             enclosed("a='''", "x\n", 500'000, ""),
             enclosed(repeated("[", 100), "b,", 10'000, repeated("]", 100)),
             enclosed("a=[", "b,", 10'000, "1]\n"),
         })
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 20)));
        const ChildReading reading = readTwice(text);
        EXPECT_LT(reading.peakKilobytes, 120 * megabyte);
    }
}
