// The memory that a reading takes beside the text.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "support/counting_visitor.h"
#include "support/large_documents.h"

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
