// Readings in a small address space, of many sizes.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "limited_reading.h"
#include "support/large_documents.h"
#include "support/refused_documents.h"
#include "support/temporary_directory.h"

using test::Ending;
using test::LimitedReading;
using test::readLimited;

namespace
{

constexpr std::size_t kilobyte = 1024;
constexpr std::size_t megabyte = 1024 * kilobyte;

constexpr std::size_t most = 1024 * megabyte;

// Each a fifth more than the one before.
std::vector<std::size_t> limits()
{
    std::vector<std::size_t> all;
    for (std::size_t size = 16 * kilobyte; size < most; size += size / 5)
    {
        all.push_back(size);
    }
    return all;
}

std::string ofSize(std::size_t size, const std::string& before, const std::string& part,
                   const std::string& after)
{
    return test::enclosed(before, part, size / part.size() + 1, after);
}

std::string allMistakes(std::size_t size)
{
    std::string once;
    for (const auto& [mistake, texts] : test::refusedDocuments)
    {
        for (const std::string& text : texts)
        {
            once += text + '\n';
        }
    }
    return once.substr(0, size) + test::repeated(once, size / once.size());
}

// Of about this size; each is refused.
std::vector<std::string> refusedDocuments(std::size_t size)
{
    return {
        ofSize(size, "", "a 1\n", ""),
        ofSize(size, "", "a = hello\n", ""),
        ofSize(size, "", "a = {}\n", ""),
        ofSize(size, "", "a = [1,, 2]\n", ""),
        ofSize(size, "", "[t\n", ""),
        ofSize(size, "", "@", ""),
        ofSize(size, "", "@\n", ""),
        ofSize(size, "", "\xff", ""),
        ofSize(size, "", "\xc0?", ""),
        ofSize(size, "", "a = 'x\n", ""),
        ofSize(size, "a = \"\"\"", "x\n", ""),
        ofSize(size, "", ". ", "\n"),
        ofSize(size, "", "=", "\n"),
        ofSize(size, "", "]", "\n"),
        ofSize(size, "a = ", "[", ""),
        ofSize(size, "a = ", "{a=", ""),
        ofSize(size, "a = ", "[1,{a=", "\n"),
        ofSize(size, "", "[", "\n"),
        ofSize(size, "a = [", "1, ", "\n"),
        ofSize(size, "a = [", "1 ", "]\n"),
        ofSize(size, "a = [", ",", "]\n"),
        ofSize(size, "a = {", "b = 1, ", "}\n"),
        ofSize(size, "", "k=1\n", "@"),
        ofSize(size, "", "\n ", "@"),
        test::nestedDocument("[", "]", size / 2) + "@",
        test::mixedDocument(size) + "@",
        allMistakes(size),
    };
}

// How many readings ended in which way.
class Tally
{
public:
    void add(Ending ending) { ++counts_[static_cast<std::size_t>(ending)]; }
    int operator[](Ending ending) const { return counts_[static_cast<std::size_t>(ending)]; }

    void print(const char* what) const
    {
        std::printf("%s:", what);
        for (std::size_t index = 0; index < test::endings; ++index)
        {
            std::printf(" %d %s%s", counts_[index], test::nameOf(static_cast<Ending>(index)),
                        index + 1 < test::endings ? "," : "\n");
        }
    }

private:
    std::array<int, test::endings> counts_ = {};
};

std::string described(const std::string& text, std::size_t memory, const LimitedReading& reading)
{
    return std::to_string(text.size()) + " bytes " + testing::PrintToString(text.substr(0, 20)) +
           " with " + std::to_string(memory / kilobyte) + " kilobytes: signal " +
           std::to_string(reading.signal) + ", " + std::to_string(reading.calls) + " calls, " +
           std::to_string(reading.lines) + " log lines, the last one: " + reading.lastMessage;
}

// Readings of one text with many limits.
class LimitedReadings
{
public:
    LimitedReadings(std::string text, Tally& tally, const char* path = nullptr)
        : text_(std::move(text)), path_(path), tally_(tally),
          unlimited_(readLimited(text_, 0, path))
    {
    }

    bool isAccepted() const { return unlimited_.accepted; }

    // Reads with ever more memory, until there is enough, and then with limits that are close
    // to each other, below the one that was enough: there the least memory is left for what
    // has been found possible.  With any limit the reading must end in one of these ways.
    void run(const std::vector<Ending>& allowed)
    {
        constexpr std::size_t steps = 12;
        std::size_t below = 0;
        for (const std::size_t memory : limits())
        {
            if (isEnough(read(memory, allowed)))
            {
                for (std::size_t step = 1; step < steps; ++step)
                {
                    read(below + (memory - below) * step / steps, allowed);
                }
                return;
            }
            below = memory;
        }
        ADD_FAILURE() << "no memory is enough";
    }

private:
    static bool isEnough(Ending ending)
    {
        return ending == Ending::accepted || ending == Ending::diagnosed;
    }

    Ending read(std::size_t memory, const std::vector<Ending>& allowed)
    {
        const LimitedReading reading = readLimited(text_, memory, path_);
        const Ending ending = test::endingOf(reading, unlimited_);
        tally_.add(ending);
        EXPECT_NE(std::find(allowed.begin(), allowed.end(), ending), allowed.end())
            << test::nameOf(ending) << "; " << described(text_, memory, reading);
        return ending;
    }

    std::string text_;
    const char* path_;
    Tally& tally_;
    LimitedReading unlimited_;
};

} // namespace

TEST(AddressLimit, leavesRefusedDocumentsDiagnosedOrTooLarge)
{
    Tally tally;
    for (const std::size_t size : {kilobyte / 5, 3 * kilobyte, 20 * kilobyte})
    {
        for (const std::string& text : refusedDocuments(size))
        {
            LimitedReadings readings(text, tally);
            EXPECT_FALSE(readings.isAccepted());
            readings.run({Ending::diagnosed, Ending::tooLarge});
        }
    }
    tally.print("refused documents");
    EXPECT_GT(tally[Ending::diagnosed], 0);
    EXPECT_GT(tally[Ending::tooLarge], 0);
}

// What the parser lists of these takes several times as much as the text and its copies.
TEST(AddressLimit, leavesRoomForLongLists)
{
    constexpr std::size_t size = 2 * megabyte;
    int refused = 0;
    for (const std::string& text :
         {ofSize(size, "a = [", "1,", "1}\n"), ofSize(size, "a = [\n", "1,\n", "1}\n"),
          ofSize(size, "", "a.", "= 1\n"), ofSize(size, "a = {", "b=1,", "}\n")})
    {
        for (std::size_t memory = 16 * megabyte; memory <= 96 * megabyte; memory += 8 * megabyte)
        {
            const LimitedReading reading = readLimited(text, memory);
            EXPECT_EQ(reading.signal, 0) << described(text, memory, reading);
            EXPECT_FALSE(reading.accepted);
            refused += reading.lines == 1 ? 1 : 0;
        }
    }
    EXPECT_GT(refused, 10);
}

TEST(AddressLimit, leavesAcceptedDocumentsAcceptedOrTooLarge)
{
    Tally tally;
    for (const std::size_t size : {kilobyte, 100 * kilobyte, 3 * megabyte})
    {
        for (const std::string& text :
             {test::mixedDocument(size), ofSize(size, "a = '", "x", "'\n"),
              test::nestedDocument("[", "]", size / 2)})
        {
            LimitedReadings readings(text, tally);
            EXPECT_TRUE(readings.isAccepted());
            readings.run({Ending::accepted, Ending::tooLarge});
        }
    }
    tally.print("accepted documents");
    EXPECT_GT(tally[Ending::accepted], 0);
    EXPECT_GT(tally[Ending::tooLarge], 0);
}

TEST(AddressLimit, ofAFileMayEndWithAnException)
{
    const test::TemporaryDirectory directory;
    Tally tally;
    for (const std::size_t size : {kilobyte, 40 * kilobyte, 3 * megabyte})
    {
        for (const std::string& text :
             {test::mixedDocument(size), ofSize(size, "a = '", "x", "\n")})
        {
            const std::string path = directory.write("file", text);
            LimitedReadings(text, tally, path.c_str())
                .run({Ending::accepted, Ending::diagnosed, Ending::tooLarge, Ending::badAlloc});
        }
    }
    tally.print("files");
    EXPECT_GT(tally[Ending::accepted], 0);
    EXPECT_GT(tally[Ending::diagnosed], 0);
    EXPECT_GT(tally[Ending::tooLarge], 0);
    EXPECT_GT(tally[Ending::badAlloc], 0);
}
