// The rules of documents, followed token by token.
#include <gtest/gtest.h>

#include "direct/reader.h"

#include <string>
#include <vector>

#include "support/event_lists.h"
#include "support/event_sink.h"
#include "support/refused_documents.h"

using namespace test;
using vorn::parsers::toml::NestingStack;
using vorn::parsers::toml::Reader;

namespace
{

struct Outcome
{
    bool read;
    EventSink sink;
};

Outcome readLines(const std::string& text)
{
    Outcome outcome = {};
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(text.size()));
    NestingStack nesting(words.data(), text.size());
    outcome.read = Reader(text.data(), text.data() + text.size(), nesting, outcome.sink).lines();
    return outcome;
}

void expectReadAs(const Events& events, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Outcome outcome = readLines(text);
        EXPECT_TRUE(outcome.read);
        EXPECT_EQ(outcome.sink.events, events);
    }
}

struct Document
{
    std::string text;
    Events events;
};

void expectRead(const std::vector<Document>& documents)
{
    for (const auto& [text, events] : documents)
    {
        expectReadAs(events, {text});
    }
}

const Events one = integer("1");
const Events two = integer("2");

Events aHolding(const Events& value)
{
    return pair(bare("a"), value);
}

Events list(std::initializer_list<Events> elements)
{
    return aHolding(array(elements));
}

Events tableOf(std::initializer_list<Events> pairs)
{
    return aHolding(inlineTable(pairs));
}

const Events bIsOne = pair(bare("b"), one);

} // namespace

TEST(Reader, readsLinesWithoutContent)
{
    expectReadAs({},
                 {"", " ", "\n", "\n\n", " \n\t\n", "#", "# c", "# c\n", "\n# c\n \n# d", "\r\n"});
}

TEST(Reader, readsHeaders)
{
    const Events dottedKey = dotted({bare("a"), quoted("\"b\""), quoted("'c'"), bare("d")});
    expectRead({{"[a]\n", test::table(bare("a"))},
                {" [ a ] # c\n", test::table(bare("a"))},
                {"['a']\n", test::table(quoted("'a'"))},
                {"[\"a\"]\n", test::table(quoted("\"a\""))},
                {"[a.\"b\".'c'.d]\n", test::table(dottedKey)},
                {"[[a]]\n", arrayTable(bare("a"))},
                {"[ [ 'a' ] ]\n", arrayTable(quoted("'a'"))},
                {"[[a . \"b\" . 'c' . d]]\n", arrayTable(dottedKey)}});
}

TEST(Reader, readsPairsOfEveryScalar)
{
    const std::vector<std::pair<std::string, std::string>> scalars = {
        {"\"\"", "visitBasicString"},
        {"\"\"\"\n\"\"\"", "visitMultilineBasicString"},
        {"''", "visitLiteralString"},
        {"'''\n'''", "visitMultilineLiteralString"},
        {"1", "visitInteger"},
        {"0x1", "visitInteger"},
        {"0o1", "visitInteger"},
        {"0b1", "visitInteger"},
        {"1.0", "visitFloat"},
        {"inf", "visitFloat"},
        {"nan", "visitFloat"},
        {"true", "visitBoolean"},
        {"1979-05-27T07:32:00Z", "visitOffsetDateTime"},
        {"1979-05-27T07:32:00", "visitLocalDateTime"},
        {"1979-05-27", "visitLocalDate"},
        {"07:32:00", "visitLocalTime"},
    };
    for (const auto& [text, operation] : scalars)
    {
        const Events value = scalar(operation, text);
        expectRead({{"a=" + text + "\n", aHolding(value)},
                    {"'a' = " + text + "\t# c\r\n", pair(quoted("'a'"), value)},
                    {"a.a=" + text + "\n", pair(dotted({bare("a"), bare("a")}), value)},
                    {"a=[" + text + "]\n", list({value})},
                    {"a=[" + text + "," + text + "\n]\n", list({value, value})},
                    {"a={b=" + text + "}\n", tableOf({pair(bare("b"), value)})}});
    }
}

TEST(Reader, readsArraysWithLineBreaksWhereTheyMayBe)
{
    const Events first = list({one});
    const Events both = list({one, two});
    const Events all = list({one, two, one});
    expectReadAs(first,
                 {"a = [1]\n", "a = [1,]\n", "a = [\n1]\n", "a = [\n\n1,]\n", "a = [ # c\n1]\n"});
    expectReadAs(both, {"a = [1\n, 2]\n", "a = [1,\n2]\n", "a = [1\n,\n2\n]\n", "a = [1, 2,]\n",
                        "a = [1, 2\n,]\n", "a = [\n1\n,\n2\n,]\n"});
    expectReadAs(all, {"a = [1, 2\n, 1]\n", "a = [1, 2\n,\n1\n]\n", "a = [1,\n2,\n1,]\n"});
    // After an element that is not the first there may be two.
    expectReadAs(all, {"a = [1, 2\n \n, 1]\n", "a = [1, 2 # c\n# d\n,\n1 # e\n] # f\n"});
}

TEST(Reader, readsNestedArraysAndInlineTables)
{
    expectRead(
        {{"a = [[1]]\n", list({array({one})})},
         {"a = [[1], 2]\n", list({array({one}), two})},
         {"a = [1, [2,\n1\n]\n]\n", list({one, array({two, one})})},
         {"a = [[1,\n2\n]\n, 1\n]\n", list({array({one, two}), one})},
         {"a = [[[1], 2], 1]\n", list({array({array({one}), two}), one})},
         {"a = {b = 1}\n", tableOf({bIsOne})},
         {"a = {b = 1, b = 1}\n", tableOf({bIsOne, bIsOne})},
         {"a = {'b'.c = 1}\n", tableOf({pair(dotted({quoted("'b'"), bare("c")}), one)})},
         {"a = {b = {b = 1}, b = 1}\n", tableOf({pair(bare("b"), inlineTable({bIsOne})), bIsOne})},
         {"a = {b = [1], b = 1}\n", tableOf({pair(bare("b"), array({one})), bIsOne})},
         {"a = {b = [\n1\n,\n2\n]}\n", tableOf({pair(bare("b"), array({one, two}))})},
         {"a = [{b = 1}]\n", list({inlineTable({bIsOne})})},
         {"a = [{b = 1},]\n", list({inlineTable({bIsOne})})},
         {"a = [\n{b = 1},\n{b = [{b = 1}]}\n]\n",
          list({inlineTable({bIsOne}),
                inlineTable({pair(bare("b"), array({inlineTable({bIsOne})}))})})}});
}

// What an inner array is like says nothing about the outer one after it.
TEST(Reader, goesBackToTheRulesOfTheEnclosingArray)
{
    expectRead({{"a = [[1, 2]\n, 1]\n", list({array({one, two}), one})},
                {"a = [1, [2]\n]\n", list({one, array({two})})}});
    for (const std::string text : {"a = [[1, 2]\n]\n", "a = [{b = [1, 2\n]}\n]\n",
                                   "a = [1, [2\n]]\n", "a = [1, {b = [2\n]}]\n"})
    {
        EXPECT_FALSE(readLines(text).read) << text;
    }
}

TEST(Reader, refusesDocumentsWithAMistake)
{
    for (const auto& [mistake, texts] : refusedDocuments)
    {
        SCOPED_TRACE(mistake);
        for (const std::string& text : texts)
        {
            EXPECT_FALSE(readLines(text).read) << testing::PrintToString(text);
            EXPECT_FALSE(readLines("b = 1\n" + text).read) << testing::PrintToString(text);
        }
    }
}

TEST(Reader, refusesDocumentsThatAreCutOff)
{
    const std::string text = "[t.'u']\n[[v]]\na.\"b\" = [1, {b = \"x\", c = [2\n, 3\n]}]\n";
    for (std::size_t length = 0; length <= text.size(); ++length)
    {
        const std::string beginning = text.substr(0, length);
        const bool whole =
            length == 0 || (text[length - 1] == '\n' && beginning.find("2\n") == std::string::npos);
        EXPECT_EQ(readLines(beginning).read, whole || length == text.size())
            << testing::PrintToString(beginning);
    }
}

TEST(Reader, tellsWhereItsLinesEnd)
{
    const std::string text = "\n[t] # c\n\na = 1\n # c\n b = [1,\n2\n] \r\n\n[[u]]\n";
    const Outcome outcome = readLines(text);
    ASSERT_TRUE(outcome.read);
    std::vector<std::string> after;
    for (const char* const position : outcome.sink.lineEnds)
    {
        after.emplace_back(position, text.data() + text.size());
    }
    // A line's end includes the run of line breaks after it, blanks and comments.
    EXPECT_EQ(after, std::vector<std::string>({"a = 1\n # c\n b = [1,\n2\n] \r\n\n[[u]]\n",
                                               "\n b = [1,\n2\n] \r\n\n[[u]]\n", "[[u]]\n", ""}));
}

// More brackets than the rest of the text could close are not read to the end.
TEST(Reader, refusesWhatCannotBeClosed)
{
    for (const std::string opening : {"[", "{a=", "[{a="})
    {
        std::string text = "a=";
        for (int level = 0; level < 1000; ++level)
        {
            text += opening;
        }
        EXPECT_FALSE(readLines(text).read) << opening;
        EXPECT_FALSE(readLines(text + "1\n").read) << opening;
    }
}
