// Documents that are wrong, and nested as deeply as can be: they are diagnosed where the
// stack allows it, and refused where it does not.
#include <gtest/gtest.h>

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

struct Stack
{
    std::size_t size;
    std::size_t diagnosed; // levels that it surely has room for
    std::size_t most;      // levels that it surely has no room for
};

const std::vector<Stack> stacks = {
    {64 * kilobyte, 40, 250},
    {128 * kilobyte, 100, 500},
    {1024 * kilobyte, 1000, 5000},
    {8192 * kilobyte, 8000, 40000},
};

struct Nesting
{
    std::string opening;
    std::string closing;
    std::size_t levels;
};

const std::vector<Nesting> nestings = {{"[", "]", 1}, {"{a=", "}", 1}, {"[{a=", "}]", 2}};

std::string unclosed(const Nesting& nesting, std::size_t levels)
{
    return test::enclosed("a = ", nesting.opening, levels / nesting.levels, "");
}

std::string closedWithErrorBehind(const Nesting& nesting, std::size_t levels)
{
    // (Valid lines do not go through the recognisers.)
    std::string text =
        test::nestedDocument(nesting.opening, nesting.closing, levels / nesting.levels);
    text.pop_back();
    return text + " b\n@";
}

const std::vector<std::string (*)(const Nesting&, std::size_t)> documents = {unclosed,
                                                                             closedWithErrorBehind};

std::string describe(const Stack& stack, const std::string& text)
{
    return std::to_string(text.size()) + " bytes " + text.substr(0, 12) + "... on " +
           std::to_string(stack.size / kilobyte) + " kilobytes";
}

void expectTooDeep(const ChildReading& reading, std::size_t levels)
{
    EXPECT_EQ(reading.signal, 0);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.calls, 0u);
    EXPECT_EQ(reading.lines, 1u);
    EXPECT_EQ(reading.lastMessage, test::tooDeep(static_cast<unsigned>(levels)));
}

bool isTooDeep(const ChildReading& reading)
{
    return reading.lastMessage.find("nested too deeply") != std::string::npos;
}

void expectSame(const ChildReading& reading, const ChildReading& expected)
{
    EXPECT_EQ(reading.signal, 0);
    EXPECT_EQ(reading.accepted, expected.accepted);
    EXPECT_EQ(reading.calls, expected.calls);
    EXPECT_EQ(reading.lines, expected.lines);
    EXPECT_EQ(reading.logHash, expected.logHash) << reading.lastMessage;
}

// On a stack that is too large to matter.
ChildReading readWithRoom(const std::string& text)
{
    const ChildReading reading = readInChild(text, {64 * 1024 * kilobyte});
    EXPECT_EQ(reading.signal, 0);
    EXPECT_FALSE(reading.accepted);
    EXPECT_FALSE(isTooDeep(reading)) << reading.lastMessage;
    return reading;
}

} // namespace

TEST(TomlDepth, ofAMillionLevelsIsTooMuchForAnyStack)
{
    constexpr std::size_t levels = 1000 * 1000;
    for (const Nesting& nesting : nestings)
    {
        for (const auto& document : documents)
        {
            const std::string text = document(nesting, levels);
            for (const Stack& stack : stacks)
            {
                SCOPED_TRACE(describe(stack, text));
                expectTooDeep(readInChild(text, {stack.size}), levels);
            }
            SCOPED_TRACE("the main thread");
            expectTooDeep(readInChild(text), levels);
        }
    }
}

TEST(TomlDepth, thatFitsIsDiagnosedOnSmallStacksAsOnLargeOnes)
{
    for (const Nesting& nesting : nestings)
    {
        for (const auto& document : documents)
        {
            for (const Stack& stack : stacks)
            {
                const std::string text = document(nesting, stack.diagnosed);
                SCOPED_TRACE(describe(stack, text));
                expectSame(readInChild(text, {stack.size}), readWithRoom(text));
            }
        }
    }
}

// Up to some depth the diagnosis is the same, and from there on there is none.
TEST(TomlDepth, aroundTheLimitOfAStackIsOneOrTheOther)
{
    constexpr std::size_t places = VORN_TEST_STEP == 1 ? 16 : 4;
    for (const Nesting& nesting : nestings)
    {
        for (const auto& document : documents)
        {
            for (const Stack& stack : stacks)
            {
                const std::size_t step = (stack.most - stack.diagnosed) / places;
                bool wasTooDeep = false;
                for (std::size_t levels = stack.diagnosed; levels <= stack.most; levels += step)
                {
                    const std::string text = document(nesting, levels);
                    SCOPED_TRACE(describe(stack, text));
                    const ChildReading reading = readInChild(text, {stack.size});
                    EXPECT_EQ(reading.signal, 0);
                    EXPECT_FALSE(reading.accepted);
                    EXPECT_EQ(isTooDeep(reading), reading.calls == 0);
                    EXPECT_TRUE(isTooDeep(reading) || !wasTooDeep);
                    wasTooDeep = isTooDeep(reading);
                }
                EXPECT_TRUE(wasTooDeep) << describe(stack, nesting.opening);
            }
        }
    }
}

// The parser goes on after these errors and nests, where the brackets seem to match.
TEST(TomlDepth, behindErrorsEndsTheReadingToo)
{
    for (const std::string line : {"[1\n],", "[},", "[[1\n],", "{a=[1\n],", "[}, [},"})
    {
        const std::string text = test::enclosed("a = ", line, 40000, "");
        for (const Stack& stack : stacks)
        {
            SCOPED_TRACE(describe(stack, text));
            ChildLimits limits = {stack.size};
            limits.recordsLog = false; // many lines of the whole text
            const ChildReading reading = readInChild(text, limits);
            EXPECT_EQ(reading.signal, 0);
            EXPECT_FALSE(reading.accepted);
            EXPECT_EQ(reading.calls, 0u);
        }
    }
}

TEST(TomlDepth, behindErrorsIsLoggedBehindThem)
{
    const std::string text = test::enclosed("a = ", "[},", 300, "");
    const ChildReading reading = readInChild(text, {64 * kilobyte});
    EXPECT_EQ(reading.signal, 0);
    EXPECT_EQ(reading.calls, 0u);
    EXPECT_GT(reading.lines, 20u);
    EXPECT_TRUE(isTooDeep(reading)) << reading.lastMessage;
    EXPECT_GT(readWithRoom(text).lines, 300u);
}

TEST(TomlDepth, isNotWhatLongKeysAndManyBracketsMake)
{
    for (const std::string& text : {
             test::enclosed("a", ".a", 20000, " = 1 x\n"),
             test::enclosed("[a", ".a", 20000, "]]\n"),
             test::enclosed("", "[", 20000, ""),
             test::enclosed("", "{a=", 20000, ""),
             test::enclosed("", "[[a]]\n", 20000, "@"),
             test::enclosed("a = [1", ", [1]", 20000, "]\n@"),
             test::enclosed("a = '", "[", 20000, "\n"),
             test::enclosed("# ", "[", 20000, "\n@"),
         })
    {
        SCOPED_TRACE(text.substr(0, 20));
        expectSame(readInChild(text, {64 * kilobyte}), readWithRoom(text));
    }
}

// Every line opens an array that the next one ends, by an error.
TEST(TomlDepth, isNotWhatManyArraysWithoutAnEndMake)
{
    ChildLimits limits = {64 * kilobyte};
    limits.recordsLog = false;
    const ChildReading reading = readInChild(test::repeated("a = [\n", 5000), limits);
    EXPECT_EQ(reading.signal, 0);
    EXPECT_FALSE(reading.accepted);
    EXPECT_GT(reading.calls, 0u);
}

TEST(TomlDepth, isMeasuredBehindAByteOrderMark)
{
    const std::string text = "\xEF\xBB\xBF" + unclosed(nestings.front(), 100000);
    expectTooDeep(readInChild(text, {64 * kilobyte}), 100000);
}
