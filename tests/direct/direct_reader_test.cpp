// Documents that are read without the recognisers.
#include <gtest/gtest.h>

#include "direct/direct_reader.h"

#include <algorithm>
#include <string>
#include <vector>

#include "support/event_lists.h"
#include "support/event_recorder.h"
#include "support/refused_documents.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::DirectReading;
using vorn::parsers::toml::readDirectly;

namespace
{

void expectAccepted(const std::string& text, const Events& events)
{
    EventRecorder visitor;
    EXPECT_EQ(readDirectly(text, visitor), DirectReading::accepted);
    ASSERT_EQ(visitor.events().size(), events.size());
    const auto [actual, expected] =
        std::mismatch(visitor.events().begin(), visitor.events().end(), events.begin());
    if (expected != events.end())
    {
        ADD_FAILURE() << "call " << expected - events.begin() << " is " << *actual << ", not "
                      << *expected;
    }
}

void expectRefused(const std::string& text)
{
    SCOPED_TRACE(testing::PrintToString(text));
    EventRecorder visitor;
    EXPECT_EQ(readDirectly(text, visitor), DirectReading::refused);
    EXPECT_EQ(visitor.events(), Events());
}

const std::string byteOrderMark = "\xef\xbb\xbf";

} // namespace

TEST(DirectReader, makesTheCallsOfADocumentThatIsRight)
{
    expectAccepted("", document({}));
    expectAccepted("# c", document({}));
    expectAccepted("a = 1\n", document({pair(bare("a"), integer("1"))}));
    expectAccepted(
        "[t]\n'a'.b = [1, {c = \"x\"}]\n\n[[u]] # c\n",
        document({table(bare("t")),
                  pair(dotted({quoted("'a'"), bare("b")}),
                       array({integer("1"), inlineTable({pair(bare("c"), scalar("visitBasicString",
                                                                                "\"x\""))})})),
                  arrayTable(bare("u"))}));
}

TEST(DirectReader, makesNoCallForADocumentWithAMistake)
{
    for (const auto& [mistake, texts] : refusedDocuments)
    {
        SCOPED_TRACE(mistake);
        for (const std::string& text : texts)
        {
            expectRefused(text);
            expectRefused("b = 1\n" + text);
        }
    }
}

TEST(DirectReader, makesNoCallForAMistakeFarFromTheBeginning)
{
    std::string lines;
    for (int line = 0; line < 100000; ++line)
    {
        lines += "key = 1\n";
    }
    for (const std::string end : {"a = [1\n]\n", "a = {}\n", "a", "@", "[t]"})
    {
        EventRecorder visitor;
        EXPECT_EQ(readDirectly(lines + end, visitor), DirectReading::refused) << end;
        EXPECT_EQ(visitor.events().size(), 0u) << end;
    }
}

TEST(DirectReader, makesNoCallForADocumentWithUnusualBytes)
{
    for (const std::string& text : unusualDocuments)
    {
        expectRefused(text);
        expectRefused("b = 1\n" + text);
    }
}

TEST(DirectReader, skipsAByteOrderMarkAtTheBeginning)
{
    const Events aIsOne = document({pair(bare("a"), integer("1"))});
    expectAccepted(byteOrderMark, document({}));
    expectAccepted(byteOrderMark + "\n", document({}));
    expectAccepted(byteOrderMark + "# c", document({}));
    expectAccepted(byteOrderMark + "a = 1\n", aIsOne);
    expectAccepted(byteOrderMark + " a = 1\n# " + byteOrderMark + "\n", aIsOne);
    expectAccepted(
        "a = '" + byteOrderMark + "'\n",
        document({pair(bare("a"), scalar("visitLiteralString", '\'' + byteOrderMark + '\''))}));
    for (const std::string& text :
         {byteOrderMark + byteOrderMark, byteOrderMark.substr(0, 2), byteOrderMark.substr(0, 1),
          ' ' + byteOrderMark, '\n' + byteOrderMark + "a = 1\n", "a = 1\n" + byteOrderMark,
          byteOrderMark + "a = 1", byteOrderMark.substr(0, 2) + "a = 1\n"})
    {
        expectRefused(text);
    }
}

TEST(DirectReader, endsTextsAtTheirNulByte)
{
    expectAccepted("a = 'x\0y'\nb = 1\n"s,
                   document({pair(bare("a"), scalar("visitLiteralString", "'x")),
                             pair(bare("b"), integer("1"))}));
    expectAccepted("# \0\n\"\0\" = 1\n"s, document({pair(quoted("\""), integer("1"))}));
    expectRefused("a = 1\n\0"s);
    expectRefused("\0"s);
}

TEST(DirectReader, handsTextsOverOfEveryLength)
{
    for (const std::size_t start : {0u, 26u, 120u, 65530u})
    {
        for (std::size_t length = start; length < start + 15; ++length)
        {
            SCOPED_TRACE(length);
            const std::string key(length + 1, 'k');
            const std::string text = '"' + std::string(length, 'x') + '"';
            const Events keyed = pair(bare(key), scalar("visitBasicString", text));
            const Events listed =
                pair(bare("l"),
                     array({scalar("visitBasicString", text), scalar("visitBasicString", text)}));
            const std::string line = key + '=' + text + '\n';
            expectAccepted(line, document({keyed}));
            expectAccepted(line + "l=[" + text + ',' + text + "]\n" + line,
                           document({keyed, listed, keyed}));
            expectAccepted('[' + key + "]\n", document({table(bare(key))}));
            expectAccepted('[' + text + "]\n", document({table(quoted(text))}));
        }
    }
}

TEST(DirectReader, readsTextsBehindAnyGap)
{
    for (const std::size_t start : {0u, 10u, 120u, 65530u, 131066u})
    {
        for (std::size_t length = start; length < start + 10; ++length)
        {
            SCOPED_TRACE(length);
            const std::string blanks(length, ' ');
            const std::string comment = '#' + std::string(length, 'c') + '\n';
            const Events aIsOne = pair(bare("a"), integer("1"));
            expectAccepted(blanks + "a" + blanks + '=' + blanks + "1" + blanks + '\n' + "a=1\n",
                           document({aIsOne, aIsOne}));
            expectAccepted(comment + "a=1\n" + comment + "a=1" + comment + comment,
                           document({aIsOne, aIsOne}));
        }
    }
}
