// Documents that are wrong, where memory is short: they are diagnosed or refused, and the
// process goes on.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/child_reading.h"
#include "support/driver_log.h"
#include "support/large_documents.h"

using test::ChildLimits;
using test::ChildReading;
using test::readInChild;

namespace
{

constexpr std::size_t kilobyte = 1024;
constexpr std::size_t megabyte = 1024 * kilobyte;

std::string ofSize(std::size_t size, const std::string& before, const std::string& part,
                   const std::string& after)
{
    return test::enclosed(before, part, size / part.size(), after);
}

// Documents of about this size, each of which is refused.
std::vector<std::string> documents(std::size_t size)
{
    return {
        ofSize(size, "", "k=1\n", "@"),
        ofSize(size, "", "a = 'x' # text\n", "@"),
        ofSize(size, "", "[a]\n", "@"),
        ofSize(size, "", "\n ", "@"),
        ofSize(size, "", "@", ""),
        ofSize(size, "", "\xd0\xba", ""),
        ofSize(size, "", "'\n", ""),
        ofSize(size, "", "# comment\n", "@"),
        ofSize(size, "a = \"", "x", "\n"),
        ofSize(size, "a = '''", "x\n", ""),
        ofSize(size, "", "x", " = 1 2\n"),
        ofSize(size, "a", ".a", " = 1\n@"),
        ofSize(size, "a = [", "1, ", "1]\n@"),
        ofSize(size, "a = [", "b, ", "1]\n"),
        ofSize(size, "a = ", "[", ""),
        ofSize(size, "a = ", "[{a=", ""),
        ofSize(size, "", "[", ""),
        ofSize(size, "a = ", "[\n[1,\n", ""),
        // Each of its errors is logged with the whole text.
        ofSize(std::min(size, 10 * kilobyte), "a = [[1\n],", "[1\n],", ""),
    };
}

// Does so for every VORN_TEST_STEPth call.
void expectDiagnosedOrRefused(const std::string& text, ChildLimits limits)
{
    static int cases = 0;
    if (cases++ % VORN_TEST_STEP != 0)
    {
        return;
    }
    SCOPED_TRACE(std::to_string(text.size()) + " bytes " +
                 testing::PrintToString(text.substr(0, 12)) + " with " +
                 std::to_string(limits.memory / kilobyte) + " kilobytes of memory and a stack of " +
                 std::to_string(limits.stack / kilobyte));
    limits.recordsLog = false;
    const ChildReading reading = readInChild(text, limits);
    EXPECT_EQ(reading.signal, 0);
    EXPECT_FALSE(reading.accepted);
    if (reading.calls != 0)
    {
        return;
    }
    // Without a walk there is one line that tells why, at the end.
    if (text.find("\n],") == std::string::npos)
    {
        limits.recordsLog = true;
        const ChildReading refused = readInChild(text, limits);
        EXPECT_EQ(refused.lines, 1u);
        EXPECT_TRUE(refused.lastMessage == test::tooLarge(text.size()) ||
                    refused.lastMessage.find("nested too deeply") != std::string::npos)
            << refused.lastMessage;
    }
}

} // namespace

TEST(TomlLimits, ofMemoryNeverEndTheProcess)
{
    for (const std::size_t size : {kilobyte, 10 * kilobyte, 100 * kilobyte})
    {
        for (const std::string& text : documents(size))
        {
            for (const std::size_t memory : {1, 3, 4, 5, 6, 8, 12, 20, 30, 50, 80, 120, 200, 300})
            {
                expectDiagnosedOrRefused(text, {0, memory * megabyte});
            }
        }
    }
}

TEST(TomlLimits, ofMemoryNeverEndTheProcessForLargeDocuments)
{
    constexpr std::size_t size = 10 * megabyte;
    for (const std::string& text :
         {ofSize(size, "", "k=1\n", "@"), ofSize(size, "a = \"", "x", "\n"),
          ofSize(size, "a = ", "[", ""), ofSize(size, "", "[", "")})
    {
        for (const std::size_t memory : {16, 64, 200, 500})
        {
            expectDiagnosedOrRefused(text, {0, memory * megabyte});
        }
    }
}

TEST(TomlLimits, ofMemoryNeverEndTheProcessFromAThread)
{
    for (const std::size_t size : {kilobyte, 100 * kilobyte})
    {
        for (const std::string& text : documents(size))
        {
            for (const std::size_t memory : {1, 5, 8, 20, 50, 90, 130, 200, 260, 300})
            {
                expectDiagnosedOrRefused(text, {megabyte, memory * megabyte});
            }
        }
    }
}

TEST(TomlLimits, refuseWhatIsTooLargeWithItsSize)
{
    // A statement takes its tree.
    const std::string text = test::enclosed("a = [", "1,", 200'000, "1 2]\n");
    const ChildReading refused = readInChild(text, {0, 100 * megabyte});
    EXPECT_EQ(refused.signal, 0);
    EXPECT_FALSE(refused.accepted);
    EXPECT_EQ(refused.calls, 0u);
    EXPECT_EQ(refused.lines, 1u);
    EXPECT_EQ(refused.lastMessage, test::tooLarge(text.size()));
}

TEST(TomlLimits, leaveDocumentsOfValidLinesDiagnosedInLittleMemory)
{
    const std::string lines = test::repeated("k=1\n", 100'000);
    for (const std::string& text :
         {lines + "@", lines + "a = [1 2]\n" + lines, "b = 1 2\n" + lines})
    {
        const ChildReading unlimited = readInChild(text);
        const ChildReading reading = readInChild(text, {0, 20 * megabyte});
        EXPECT_EQ(reading.signal, 0);
        EXPECT_FALSE(reading.accepted);
        EXPECT_GT(reading.calls, 0u);
        EXPECT_EQ(reading.calls, unlimited.calls);
        EXPECT_EQ(reading.lines, unlimited.lines);
    }
}

TEST(TomlLimits, leaveSmallDocumentsDiagnosedInLittleMemory)
{
    for (const std::string& text : documents(kilobyte))
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 12)));
        const ChildReading unlimited = readInChild(text);
        const ChildReading reading = readInChild(text, {0, 16 * megabyte});
        EXPECT_EQ(reading.signal, 0);
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.calls, unlimited.calls);
        EXPECT_EQ(reading.lines, unlimited.lines);
        EXPECT_EQ(reading.logHash, unlimited.logHash) << reading.lastMessage;
    }
}
