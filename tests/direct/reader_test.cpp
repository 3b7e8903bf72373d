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
