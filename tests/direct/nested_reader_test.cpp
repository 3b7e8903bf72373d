// Arrays and inline tables, however deep they are nested, with each cursor.
#include <gtest/gtest.h>

#include "direct/nested_reader.h"

#include <string>
#include <vector>

#include "direct/direct_cursor.h"
#include "direct/token_cursor.h"
#include "support/event_lists.h"
#include "support/event_sink.h"

using namespace test;
using vorn::parsers::toml::DirectCursor;
using vorn::parsers::toml::NestedReader;
using vorn::parsers::toml::NestingStack;
using vorn::parsers::toml::TokenCursor;

namespace
{

// The direct cursor of processors without vectors.
using WordCursor = vorn::parsers::toml::BlockCursor<vorn::parsers::toml::WordBlock>;

struct Outcome
{
    bool read;
    Events events;
    std::string rest;
};

template <typename Cursor>
Outcome readWith(const std::string& text)
{
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(text.size()));
    NestingStack nesting(words.data(), text.size());
    Cursor tokens(text.data(), text.data() + text.size());
    EventSink sink;
    const auto bracket = takeValue(tokens).event;
    const bool read = NestedReader(tokens, sink, nesting).read(bracket);
    return {read, sink.events, {tokens.position(), text.data() + text.size()}};
}

// After it a block of bytes does not reach the end.
const std::string rest = "\n# " + std::string(60, '-') + "\nb = 1\n";

void expectReadAs(const Events& events, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        for (const std::string& after : {std::string("\n"), rest, std::string("]"), std::string()})
        {
            for (const Outcome& outcome :
                 {readWith<TokenCursor>(text + after), readWith<DirectCursor>(text + after),
                  readWith<WordCursor>(text + after)})
            {
                EXPECT_TRUE(outcome.read);
                EXPECT_EQ(outcome.events, events);
                EXPECT_EQ(outcome.rest, after);
            }
        }
    }
}

void expectRefused(const std::string& text)
{
    for (const std::string& after : {std::string("\n"), rest})
    {
        EXPECT_FALSE(readWith<TokenCursor>(text + after).read) << text;
        EXPECT_FALSE(readWith<DirectCursor>(text + after).read) << text;
        EXPECT_FALSE(readWith<WordCursor>(text + after).read) << text;
    }
}

struct Value
{
    std::string text;
    Events events;
};

void expectRead(const std::vector<Value>& values)
{
    for (const auto& [text, events] : values)
    {
        expectReadAs(events, {text});
    }
}

const Events one = integer("1");
const Events two = integer("2");

const Events bIsOne = pair(bare("b"), one);

} // namespace

TEST(NestedReader, readsArraysWithLineBreaksWhereTheyMayBe)
{
    const Events first = array({one});
    const Events both = array({one, two});
    const Events all = array({one, two, one});
    expectReadAs(first, {"[1]", "[1,]", "[\n1]", "[\n\n1,]", "[ # c\n1]"});
    expectReadAs(both,
                 {"[1\n, 2]", "[1,\n2]", "[1\n,\n2\n]", "[1, 2,]", "[1, 2\n,]", "[\n1\n,\n2\n,]"});
    expectReadAs(all, {"[1, 2\n, 1]", "[1, 2\n,\n1\n]", "[1,\n2,\n1,]"});
    // After an element that is not the first there may be two.
    expectReadAs(all, {"[1, 2\n \n, 1]", "[1, 2 # c\n# d\n,\n1 # e\n]"});
}

TEST(NestedReader, readsNestedArraysAndInlineTables)
{
    expectRead(
        {{"[[1]]", array({array({one})})},
         {"[[1], 2]", array({array({one}), two})},
         {"[1, [2,\n1\n]\n]", array({one, array({two, one})})},
         {"[[1,\n2\n]\n, 1\n]", array({array({one, two}), one})},
         {"[[[1], 2], 1]", array({array({array({one}), two}), one})},
         {"{b = 1}", inlineTable({bIsOne})},
         {"{b = 1, b = 1}", inlineTable({bIsOne, bIsOne})},
         {"{'b'.c = 1}", inlineTable({pair(dotted({quoted("'b'"), bare("c")}), one)})},
         {"{b = {b = 1}, b = 1}", inlineTable({pair(bare("b"), inlineTable({bIsOne})), bIsOne})},
         {"{b = [1], b = 1}", inlineTable({pair(bare("b"), array({one})), bIsOne})},
         {"{b = [\n1\n,\n2\n]}", inlineTable({pair(bare("b"), array({one, two}))})},
         {"[{b = 1}]", array({inlineTable({bIsOne})})},
         {"[{b = 1},]", array({inlineTable({bIsOne})})},
         {"[\n{b = 1},\n{b = [{b = 1}]}\n]",
          array({inlineTable({bIsOne}),
                 inlineTable({pair(bare("b"), array({inlineTable({bIsOne})}))})})}});
}

// What an inner array is like says nothing about the outer one after it.
TEST(NestedReader, goesBackToTheRulesOfTheEnclosingArray)
{
    expectRead({{"[[1, 2]\n, 1]", array({array({one, two}), one})},
                {"[1, [2]\n]", array({one, array({two})})}});
    for (const std::string text :
         {"[[1, 2]\n]", "[{b = [1, 2\n]}\n]", "[1, [2\n]]", "[1, {b = [2\n]}]"})
    {
        expectRefused(text);
    }
}

TEST(NestedReader, refusesArraysAndInlineTablesWithAMistake)
{
    for (const std::string text : {"[",          "[]",        "[,]",
                                   "[,1]",       "[1,,]",     "[1 2]",
                                   "[1,\n]",     "[1\n]",     "[\n\n]",
                                   "[1}",        "[a]",       "[1, ",
                                   "[1,\n\n",    "{",         "{}",
                                   "{,}",        "{b = 1,}",  "{b = 1 c = 2}",
                                   "{\nb = 1}",  "{b = 1\n}", "{b = 1,\nb = 1}",
                                   "{b}",        "{b = }",    "{1.5 = 1}",
                                   "{b = 1]",    "[{b = 1]",  "{b = [1}",
                                   "[[1], [2}]", "[@]",       "{@ = 1}",
                                   "{b = @}"})
    {
        SCOPED_TRACE(testing::PrintToString(text));
        expectRefused(text);
    }
}

TEST(NestedReader, refusesWhatStartsWithNoBracket)
{
    for (const std::string text : {"", "]", "}", ",", "@"})
    {
        expectRefused(text);
    }
}

// More brackets than the rest of the text could close are not read to the end.
TEST(NestedReader, refusesWhatCannotBeClosed)
{
    for (const std::string opening : {"[", "{a=", "[{a="})
    {
        std::string text;
        for (int level = 0; level < 1000; ++level)
        {
            text += opening;
        }
        expectRefused(text);
        expectRefused(text + "1");
    }
}
