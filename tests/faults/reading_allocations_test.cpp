// Readings of which the first, the second, ... request for memory fails.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <antlr3.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "descriptors.h"
#include "failing_memory.h"
#include "quiet_log.h"
#include "support/counting_visitor.h"
#include "support/damaged_documents.h"
#include "support/large_documents.h"
#include "support/refused_documents.h"
#include "support/stderr_capture.h"
#include "support/temporary_directory.h"

using test::Failing;
using test::FailingMemory;
using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

int streams = 0; // that the runtime has been asked for

const std::string tooLarge = "Failed: input TOML is too large to diagnose (%zu bytes)";

// What a reading shows.
struct Outcome
{
    bool hasFailed = false; // a request for memory
    bool hasThrown = false; // std::bad_alloc
    bool accepted = false;
    std::size_t calls = 0;
    std::size_t textBytes = 0;        // that the calls got
    std::vector<std::string> formats; // of the log lines
    int streams = 0;
    long blocks = 0; // that were not given back
    int file = -1;   // the lowest descriptor that is free after it
};

template <typename Source>
Outcome read(const Source& source, long number, Failing failing)
{
    test::CountingVisitor visitor;
    test::clearLog();
    streams = 0;
    Outcome outcome;
    {
        const FailingMemory memory(number, failing);
        try
        {
            outcome.accepted = visitTomlTree(source, visitor);
        }
        catch (const std::bad_alloc&)
        {
            outcome.hasThrown = true;
        }
        outcome.hasFailed = memory.hasFailed();
        outcome.blocks = memory.blocks();
    }
    outcome.calls = visitor.calls;
    outcome.textBytes = visitor.textBytes;
    outcome.formats = test::loggedFormats();
    outcome.streams = streams;
    outcome.file = test::lowestFreeDescriptor();
    return outcome;
}

void expectSame(const Outcome& outcome, const Outcome& whole)
{
    EXPECT_EQ(outcome.accepted, whole.accepted);
    EXPECT_EQ(outcome.calls, whole.calls);
    EXPECT_EQ(outcome.textBytes, whole.textBytes);
    EXPECT_EQ(outcome.formats, whole.formats);
    EXPECT_FALSE(outcome.hasThrown);
}

// A reading that could not go on says so at the end, unless it throws, and has made no call.
void expectEnded(const Outcome& outcome, const Outcome& whole)
{
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.calls, 0u);
    if (outcome.hasThrown)
    {
        EXPECT_EQ(outcome.formats, std::vector<std::string>());
        return;
    }
    ASSERT_FALSE(outcome.formats.empty());
    const std::vector<std::string> reasons = {
        tooLarge, "Failed: input TOML is nested too deeply (%u levels)",
        "Failed to create toml lexer", "Failed to create toml parser",
        "Failed to create toml tree"};
    EXPECT_EQ(std::count(reasons.begin(), reasons.end(), outcome.formats.back()), 1)
        << outcome.formats.back();
    // What comes before is what the whole reading logs.
    const std::size_t before = outcome.formats.size() - 1;
    ASSERT_LE(before, whole.formats.size());
    EXPECT_TRUE(
        std::equal(outcome.formats.begin(), outcome.formats.end() - 1, whole.formats.begin()));
}

void expectTooLarge(const Outcome& outcome)
{
    EXPECT_FALSE(outcome.hasThrown);
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.calls, 0u);
    EXPECT_EQ(outcome.formats, std::vector<std::string>{tooLarge});
}

// Reads with ever later failures, up to the first reading that none reaches; hands the
// outcomes of the others to `check`.
template <typename Source, typename Check>
void expectWord(const Source& source, bool accepted, Check check)
{
    const test::StderrCapture quiet;
    const Outcome whole = read(source, 0, Failing::once);
    EXPECT_EQ(whole.accepted, accepted);
    EXPECT_EQ(whole.streams, accepted ? 0 : 1);
    for (const Failing failing : {Failing::once, Failing::fromThere})
    {
        for (long number = 1;; ++number)
        {
            SCOPED_TRACE("request " + std::to_string(number) +
                         (failing == Failing::once ? "" : " and all after it"));
            const Outcome outcome = read(source, number, failing);
            EXPECT_EQ(outcome.blocks, 0);
            EXPECT_EQ(outcome.file, whole.file);
            if (!outcome.hasFailed)
            {
                expectSame(outcome, whole);
                EXPECT_GT(number, 2);
                break;
            }
            EXPECT_LE(outcome.streams, whole.streams);
            check(outcome, whole);
        }
    }
}

const auto isDiagnosedOrEnded = [](const Outcome& outcome, const Outcome& whole)
{
    if (outcome.calls != 0)
    {
        expectSame(outcome, whole);
    }
    else
    {
        expectEnded(outcome, whole);
    }
};

const auto isTooLarge = [](const Outcome& outcome, const Outcome&) { expectTooLarge(outcome); };

// The file's content is the one thing whose memory is asked for with an exception.
const auto isTooLargeOrThrows = [](const Outcome& outcome, const Outcome& whole)
{
    if (outcome.hasThrown)
    {
        expectEnded(outcome, whole);
    }
    else
    {
        expectTooLarge(outcome);
    }
};

const std::vector<std::string> acceptedDocuments = {"", "a = 1\n", test::mixedDocument(5000),
                                                    test::nestedDocument("[", "]", 100),
                                                    "a = '" + std::string(100'000, 'x') + "'\n"};

// Mistakes of the lexer, of the parser, and of both, at all depths.
std::vector<std::string> documentsWithMistakes()
{
    std::vector<std::string> documents = {
        test::mixedDocument(5000) + "@",
        test::repeated("a 1\n@\n", 20),
        "a = " + std::string(40, '[') + "\n",
        "a = '" + std::string(5000, 'x') + "'\nb = {}\n",
        "a = [1, '" + std::string(5000, 'y') + "',, {}]\n",
    };
    for (const auto& [mistake, texts] : test::refusedDocuments)
    {
        documents.insert(documents.end(), texts.begin(), texts.end());
    }
    documents.insert(documents.end(), test::damagedDocuments.begin(), test::damagedDocuments.end());
    return documents;
}

} // namespace

extern "C"
{
    pANTLR3_INPUT_STREAM __real_antlr3StringStreamNew(pANTLR3_UINT8 text, ANTLR3_UINT32 encoding,
                                                      ANTLR3_UINT32 size, pANTLR3_UINT8 name);

    pANTLR3_INPUT_STREAM __wrap_antlr3StringStreamNew(pANTLR3_UINT8 text, ANTLR3_UINT32 encoding,
                                                      ANTLR3_UINT32 size, pANTLR3_UINT8 name)
    {
        ++streams;
        return __real_antlr3StringStreamNew(text, encoding, size, name);
    }
}

TEST(ReadingAllocations, failAsTold)
{
    ASSERT_TRUE(test::isRuntimeKnown());
    for (const Failing failing : {Failing::once, Failing::fromThere})
    {
        void* volatile blocks[3] = {};
        long had = 0;
        {
            const FailingMemory memory(2, failing);
            for (void* volatile& block : blocks)
            {
                block = std::malloc(1);
            }
            had = memory.blocks();
        }
        EXPECT_NE(blocks[0], nullptr);
        EXPECT_EQ(blocks[1], nullptr);
        EXPECT_EQ(blocks[2] == nullptr, failing == Failing::fromThere);
        EXPECT_EQ(had, failing == Failing::fromThere ? 1 : 2);
        std::free(blocks[0]);
        std::free(blocks[2]);
    }
}

// With a pair that is too large for what the reader has on the stack.
std::string enlarged(const std::string& text)
{
    return text + "large = '" + std::string(5000, 'x') + "'\n";
}

TEST(ReadingAllocations, ofAnAcceptedDocument)
{
    for (const std::string& text : acceptedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectWord(enlarged(text), true, isTooLarge);
    }
}

TEST(ReadingAllocations, ofARefusedDocument)
{
    for (const std::string& text : documentsWithMistakes())
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectWord(text, false, isDiagnosedOrEnded);
    }
}

TEST(ReadingAllocations, ofAFile)
{
    const test::TemporaryDirectory directory;
    for (const std::string& text : acceptedDocuments)
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectWord(FilePath(directory.write("accepted", enlarged(text))), true, isTooLargeOrThrows);
    }
    for (const std::string& text : {test::mixedDocument(5000) + "@", std::string("a = [1, {}]")})
    {
        SCOPED_TRACE(testing::PrintToString(text.substr(0, 40)));
        expectWord(FilePath(directory.write("refused", text)), false, isDiagnosedOrEnded);
    }
}

// A pipe does not tell its size, so that its content takes more memory as it comes.
TEST(ReadingAllocations, ofAPipe)
{
    const std::string text = test::mixedDocument(20'000);
    const auto readPipe = [&text](long number, Failing failing)
    {
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe(ends), 0);
        EXPECT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
        close(ends[1]);
        const Outcome outcome =
            read(FilePath("/proc/self/fd/" + std::to_string(ends[0])), number, failing);
        close(ends[0]);
        return outcome;
    };
    const Outcome whole = readPipe(0, Failing::once);
    EXPECT_TRUE(whole.accepted);
    int thrown = 0;
    for (long number = 1;; ++number)
    {
        SCOPED_TRACE(number);
        const Outcome outcome = readPipe(number, Failing::fromThere);
        EXPECT_EQ(outcome.blocks, 0);
        EXPECT_EQ(outcome.file, whole.file);
        if (!outcome.hasFailed)
        {
            expectSame(outcome, whole);
            break;
        }
        isTooLargeOrThrows(outcome, whole);
        thrown += outcome.hasThrown ? 1 : 0;
    }
    EXPECT_GT(thrown, 2);
}
