// How deeply documents are nested.
#include <gtest/gtest.h>

#include "diagnosis/document_depth.h"

#include <vorn/parsers/toml.h>

#include <string>
#include <vector>

#include "support/counting_visitor.h"
#include "support/guarded_memory.h"
#include "support/large_documents.h"

using namespace std::string_literals;

namespace
{

unsigned depthOf(const std::string& text)
{
    test::GuardedMemory memory(text.size() + 1);
    return vorn::parsers::toml::diagnosis::documentDepth(
        {memory.holdTerminated(text), text.size()});
}

void expectDepth(unsigned depth, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        EXPECT_EQ(depthOf(text), depth) << testing::PrintToString(text);
    }
}

const std::string byteOrderMark = "\xEF\xBB\xBF";

} // namespace

TEST(DocumentDepth, isNoneWithoutArraysAndInlineTables)
{
    expectDepth(0, {"", "\n\n", "# [[[\n", "a = 1\n", "a = '[[{'\n", "a.b.'c' = 1\n",
                    "[a]\n[[b]]\n[c.d]\n"});
}

TEST(DocumentDepth, isThatOfTheDeepestValue)
{
    expectDepth(1, {"a = [1]\n", "a = {b = 1}\n"});
    expectDepth(2, {"a = [[1]]\n", "a = [[1], [2], [3]]\n", "a = [\n[\n1]]\n",
                    "a = {b = {c = 1}, d = 2}\n", "a = [1]\n[t]\nb = [[1]]\n[[u]]\nc = [1]\n"});
    expectDepth(3, {"a = [1, [2, [3]], 4]\n", "a = {b = {c = {d = 1}}}\n", "a = [{b = [1]}]\n",
                    "a = [[[1]]]\nb = [1]\n"});
    expectDepth(4, {"a = {b = [{c = 1}, {d = [1]}]}\n"});
}

TEST(DocumentDepth, countsWhatIsNeverClosed)
{
    expectDepth(1, {"a = ["});
    expectDepth(3, {"a = [[[", "a = [{b = [\n", "a = [[1, [2"});
    expectDepth(2, {"a = {b = {c =", "a = [[1], [", "a = [[1"});
}

TEST(DocumentDepth, endsAtTheFirstError)
{
    expectDepth(0, {"@\na = [1]\n", "a = 1 2\nb = [1]\n", "[[[a]]]\nb = [1]\n", "[[[[[["});
    expectDepth(1, {"a = [1]\n@\nb = [[1]]\n", "a = [1 [[2]]]\n", "a = [@[[1]]]\n", "a = {[1]}\n",
                    "a = [1}\nb = [[1]]\n", "a = [1]]\nb = [[1]]\n"});
    expectDepth(2, {"a = [[]]\nb = [[[1]]]\n", "a = {b = {}}\n"});
    expectDepth(3, {"a = [1]\nb = [[[1]]] 2\n"});
}

TEST(DocumentDepth, takesNoNoticeOfAByteOrderMark)
{
    expectDepth(0, {byteOrderMark});
    expectDepth(2, {byteOrderMark + "a = [[1]]\n", byteOrderMark + "a = [["});
    // A mark is nothing but that where a document begins, and once.
    expectDepth(0, {byteOrderMark + byteOrderMark + "a = [1]\n", "\xEF\xBB",
                    "\xEF\xBB"
                    "a = [1]\n"});
    expectDepth(1, {"a = [1]\n" + byteOrderMark + "b = [[1]]\n"});
}

TEST(DocumentDepth, hasNoLimit)
{
    for (const std::size_t levels : {10u, 31u, 32u, 33u, 1000u, 300'000u})
    {
        EXPECT_EQ(depthOf(test::enclosed("a=", "[", levels, "")), levels);
        EXPECT_EQ(depthOf(test::enclosed("a=", "{a=", levels, "")), levels);
        EXPECT_EQ(depthOf(test::enclosed("a=", "[{a=", levels, "")), 2 * levels);
        EXPECT_EQ(depthOf(test::nestedDocument("[", "]", levels)), levels);
    }
}

TEST(DocumentDepth, isWhatAVisitorIsTold)
{
    for (const std::string& text :
         {test::mixedDocument(5000), test::nestedDocument("[{b=", "}]", 7),
          test::nestedDocument("[1,", ",[[2]]]", 9), "a = [[1], {b = [[2]]}]\nc = {d = [3]}\n"s})
    {
        test::CountingVisitor visitor;
        ASSERT_TRUE(vorn::parsers::toml::visitTomlTree(text, visitor));
        EXPECT_EQ(depthOf(text), visitor.deepest) << text.substr(0, 100);
    }
}
