// How deeply documents are nested.
#include <gtest/gtest.h>

#include "pipeline/document_depth.h"

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
    return vorn::parsers::toml::documentDepth({memory.holdTerminated(text), text.size()});
}

struct Case
{
    std::string text;
    unsigned depth;
};

void expectDepths(const std::vector<Case>& cases)
{
    for (const auto& [text, depth] : cases)
    {
        EXPECT_EQ(depthOf(text), depth) << testing::PrintToString(text);
    }
}

const std::string byteOrderMark = "\xEF\xBB\xBF";

} // namespace

TEST(DocumentDepth, isNoneWithoutArraysAndInlineTables)
{
    expectDepths({{"", 0},
                  {"\n\n", 0},
                  {"# [[[\n", 0},
                  {"a = 1\n", 0},
                  {"a = '[[{'\n", 0},
                  {"a.b.'c' = 1\n", 0},
                  {"[a]\n[[b]]\n[c.d]\n", 0}});
}

TEST(DocumentDepth, isThatOfTheDeepestValue)
{
    expectDepths({{"a = [1]\n", 1},
                  {"a = [[1]]\n", 2},
                  {"a = [1, [2, [3]], 4]\n", 3},
                  {"a = [[1], [2], [3]]\n", 2},
                  {"a = [\n[\n1]]\n", 2},
                  {"a = {b = 1}\n", 1},
                  {"a = {b = {c = {d = 1}}}\n", 3},
                  {"a = {b = {c = 1}, d = 2}\n", 2},
                  {"a = [{b = [1]}]\n", 3},
                  {"a = {b = [{c = 1}, {d = [1]}]}\n", 4},
                  {"a = [[[1]]]\nb = [1]\n", 3},
                  {"a = [1]\n[t]\nb = [[1]]\n[[u]]\nc = [1]\n", 2}});
}

TEST(DocumentDepth, countsWhatIsNeverClosed)
{
    expectDepths({{"a = [", 1},
                  {"a = [[[", 3},
                  {"a = {b = {c =", 2},
                  {"a = [{b = [\n", 3},
                  {"a = [[1, [2", 3},
                  {"a = [[1], [", 2},
                  {"a = [[1", 2}});
}

TEST(DocumentDepth, endsAtTheFirstError)
{
    expectDepths({{"@\na = [1]\n", 0},
                  {"a = 1 2\nb = [1]\n", 0},
                  {"a = [1]\n@\nb = [[1]]\n", 1},
                  {"a = [1 [[2]]]\n", 1},
                  {"a = [@[[1]]]\n", 1},
                  {"a = [[]]\nb = [[[1]]]\n", 2},
                  {"a = {[1]}\n", 1},
                  {"a = {b = {}}\n", 2},
                  {"a = [1}\nb = [[1]]\n", 1},
                  {"a = [1]]\nb = [[1]]\n", 1},
                  {"[[[a]]]\nb = [1]\n", 0},
                  {"[[[[[[", 0},
                  {"a = [1]\nb = [[[1]]] 2\n", 3}});
}

TEST(DocumentDepth, takesNoNoticeOfAByteOrderMark)
{
    expectDepths({{byteOrderMark, 0},
                  {byteOrderMark + "a = [[1]]\n", 2},
                  {byteOrderMark + "a = [[", 2},
                  // A mark is nothing but that where a document begins, and once.
                  {byteOrderMark + byteOrderMark + "a = [1]\n", 0},
                  {"a = [1]\n" + byteOrderMark + "b = [[1]]\n", 1},
                  {"\xEF\xBB", 0},
                  {"\xEF\xBB"
                   "a = [1]\n",
                   0}});
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
