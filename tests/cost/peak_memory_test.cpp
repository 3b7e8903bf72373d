// The memory that a reading takes beside the text.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>
#include <vorn/utils/log.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "support/counting_visitor.h"
#include "support/large_documents.h"
#include "support/memory_peak.h"

// In the place of the utility library's: a line may hold the whole document, and what a logger
// takes for it is not the library's.
void logInternal(const char*, const char*, const char*, int, int, int, int, const char*, ...)
{
}

namespace
{

constexpr std::size_t size = 10 * 1000 * 1000;
constexpr long megabyte = 1024; // in kilobytes

using MakeText = std::function<std::string()>;

// The most memory, in kilobytes, that a process of its own has while it makes a text, and
// reads it if it is to.
long peakOf(const MakeText& makeText, bool reads)
{
    const pid_t child = fork();
    if (child == 0)
    {
        // The first use of the library brings in the pages of its code.
        test::CountingVisitor visitor;
        vorn::parsers::toml::visitTomlTree(test::mixedDocument(1000), visitor);
        const std::string text = makeText();
        const bool right = !reads || vorn::parsers::toml::visitTomlTree(text, visitor);
        _exit(right && text.size() >= size ? 0 : 1);
    }
    int status = -1;
    rusage usage = {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the document was refused, or is too small";
    return usage.ru_maxrss;
}

// Beside the text, and beside the scratch text that holds the longest scalar.
void expectLittle(const std::string& what, const MakeText& makeText, std::size_t longestText = 0)
{
    const long textAlone = peakOf(makeText, false);
    // The text is made without copies, which would hide what the reading takes.
    EXPECT_LT(textAlone - peakOf([] { return std::string(size, ' '); }, false), megabyte / 2)
        << what;
    const long taken = peakOf(makeText, true) - textAlone;
    EXPECT_LE(taken, static_cast<long>(longestText / 1024) + megabyte) << what;
}

// In bytes, of a document that is rejected, but not for its size: the visitor gets what there is.
std::size_t peakOfRejected(const MakeText& makeText, test::Heap heap = test::Heap::fresh)
{
    const auto isRejected = [](const std::string& text)
    {
        test::CountingVisitor visitor;
        return !vorn::parsers::toml::visitTomlTree(text, visitor) && visitor.calls > 0;
    };
    return static_cast<std::size_t>(test::peakBesideText(makeText, isRejected, heap)) * 1024;
}

// A mistake of each stage and of each part of a line.
constexpr const char* mistakes[] = {"b = 1 2\n", "a b = 1\n", "a = [1 2]\n", "a = \"x\\q\"\n",
                                    "a = @\n"};

constexpr const char* fourBytes[] = {"a=\n\n", "a=@\n", "= 1\n", "a 1\n"};

class PeakMemoryOfRejected : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!test::canMeasurePeaks())
        {
            GTEST_SKIP() << "the kernel does not tell a process's peak from some moment on";
        }
    }
};

} // namespace

TEST(PeakMemory, isAtMostAMegabyteAboveTheText)
{
    expectLittle("mixed lines", [] { return test::mixedDocument(size); });
    expectLittle("pairs", [] { return test::repeated("a=1\n", size / 4); });
    expectLittle("line breaks", [] { return test::repeated(" \n", size / 2); });
    expectLittle("a long array", [] { return test::enclosed("a=[1", ",1", size / 2, "]\n"); });
    expectLittle("a long dotted key", [] { return test::enclosed("", "a.", size / 2, "a=1\n"); });
    expectLittle("a long comment", [] { return test::enclosed("#", "c", size, ""); });
}

TEST(PeakMemory, staysThereForADocumentOfAMillionLevels)
{
    expectLittle("arrays", [] { return test::nestedDocument("[ \t  ", "    ]", 1000 * 1000); });
    expectLittle("inline tables",
                 [] { return test::nestedDocument("{key = ", "  }", 1000 * 1000); });
}

TEST(PeakMemory, takesTheLongestScalarOnceMore)
{
    expectLittle(
        "a long string", [] { return test::enclosed("a = '", "x", size, "'\n"); }, size);
    expectLittle(
        "a long key", [] { return test::enclosed("", "x", size, " = 1\n"); }, size);
}

TEST_F(PeakMemoryOfRejected, isAtMostTwentyTimesTheTextForOneMistake)
{
    constexpr std::size_t textSize = 100'000;
    for (const std::string line : mistakes)
    {
        EXPECT_LE(peakOfRejected([&] { return test::mixedDocument(textSize) + line; }),
                  20 * textSize)
            << line << "in the last line";
        const auto half = [] { return test::mixedDocument(textSize / 2); };
        EXPECT_LE(peakOfRejected([&] { return half() + line + half(); }), 20 * textSize)
            << line << "in the middle";
    }
}

TEST_F(PeakMemoryOfRejected, isBelow64MegabytesForOneMistakeAfterTen)
{
    EXPECT_LT(peakOfRejected([] { return test::mixedDocument(size) + "a = [1 2]\n"; }),
              64'000'000u);
}

// What the recognisers make of a line is there until the document has been read.  Programs that
// read documents of others are told to stop at some 100 KB: with these bounds 64 MB are enough for
// the worst of them.
TEST_F(PeakMemoryOfRejected, isBoundedForEachLineThatIsBad)
{
    struct BadLine
    {
        std::string text;
        std::size_t maxBytes;
    };
    for (const BadLine& line : {BadLine{"a 1\n", 1'840}, {"a = {}\n", 4'400}, {"'\n", 790}})
    {
        const std::size_t count = 100'000 / line.text.size();
        EXPECT_LE(peakOfRejected([&] { return test::repeated(line.text, count); }),
                  line.maxBytes * count)
            << line.text;
    }
}

TEST_F(PeakMemoryOfRejected, isAtMost128KilobytesForFourBytes)
{
    for (const std::string text : fourBytes)
    {
        EXPECT_LE(peakOfRejected([&] { return text; }), 128u * 1024) << text;
    }
}

// A heap that has been used clears the runtime's first pools, which otherwise are not touched.
TEST_F(PeakMemoryOfRejected, isBoundedWhereTheHeapClearsWhatItHas)
{
    for (const std::string text : fourBytes)
    {
        EXPECT_LE(peakOfRejected([&] { return text; }, test::Heap::used), 1024u * 1024) << text;
    }
}
