// Documents that are rejected: the calls that are made all the same, and the log.
#include <gtest/gtest.h>

#include "support/event_lists.h"
#include "support/rejected.h"

using namespace std::string_literals;
using namespace test;

namespace
{

const Events one = integer("1");
const Events two = integer("2");
const Events aIsOne = pair(bare("a"), one);

// A pair whose value was not there, and those enclosed in others.
const Events pairWithoutValue = {"beginKeyValue", "visitBareKey a"};

// Documents of which the parser could make no list of lines: its one error node is taken
// for an extra node before the document's end.
void expectUnreadable(const std::vector<std::pair<std::string, std::string>>& documents)
{
    for (const auto& [text, tokens] : documents)
    {
        expectRejected(
            {{text, document({}), {parserFailure(tokens), treeFailure(), syntaxErrors(2)}}});
    }
}

struct BrokenOffDocument
{
    std::string text;
    Events events; // behind beginDocument
    std::string tokens;
};

// Documents that break off the walk, after one error of the parser.
void expectBrokenOff(const std::vector<BrokenOffDocument>& documents)
{
    for (const auto& [text, events, tokens] : documents)
    {
        expectRejected({{text, brokenOff({events}), {parserFailure(tokens), walkFailure()}}});
    }
}

} // namespace

TEST(TomlRejected, theLastLineBreakIsRequired)
{
    expectRejected({
        {"a = 1", brokenOff({aIsOne}), {walkFailure()}},
        {"a = 1 # c", brokenOff({aIsOne}), {walkFailure()}},
        {"a = 1\nb = 2", brokenOff({aIsOne, pair(bare("b"), two)}), {walkFailure()}},
        {"[a]", brokenOff({table(bare("a"))}), {walkFailure()}},
        {"[[a]] ", brokenOff({arrayTable(bare("a"))}), {walkFailure()}},
        {"a = [1]", brokenOff({pair(bare("a"), array({one}))}), {walkFailure()}},
    });
}

TEST(TomlRejected, nothingMayFollowAPairOrAHeaderOnItsLine)
{
    expectUnreadable({
        {"a = 1 b = 2\n", "a=1b=2\n"},
        {"a = 1 ]\n", "a=1]\n"},
        {"a = 1,\n", "a=1,\n"},
        {"[a]]\n", "[a]]\n"},
        {"[a] b = 1\n", "[a]b=1\n"},
        {"[[a]] [b]\n", "[[a]][b]\n"},
        {"[a]\nb = 1 2\nc = 3\n", "[a]\nb=12\nc=3\n"},
        {"a = 1979-05-27T07:32:00z\n", "a=1979-05-27T07:32:00z\n"},
    });
}

TEST(TomlRejected, linesBeginWithAKeyOrABracket)
{
    expectBrokenOff({
        {"= 1\n", {}, "=1\n"},
        {"true = 1\n", {}, "true=1\n"},
        {"1234 = 1\n", {}, "1234=1\n"},
        {"1.5 = 1\n", {}, "1.5=1\n"},
        {"inf = 1\n", {}, "inf=1\n"},
        {"nan = 1\n", {}, "nan=1\n"},
        {"0x1F = 1\n", {}, "0x1F=1\n"},
        {"2020-01-01\t= 1\n", {}, "2020-01-01=1\n"},
        {"07:32:00 = 1\n", {}, "07:32:00=1\n"},
        {"'''a''' = 1\n", {}, "'''a'''=1\n"},
        {"\"\"\"a\"\"\" = 1\n", {}, "\"\"\"a\"\"\"=1\n"},
        {".a = 1\n", {}, ".a=1\n"},
        {"]\n", {}, "]\n"},
        {"{}\n", {}, "{}\n"},
        {", a\n", {}, ",a\n"},
        {"a = 1\n}\nb = 2\n", {aIsOne}, "a=1\n}\nb=2\n"},
    });
}

TEST(TomlRejected, keysAreFollowedByADotAnEqualsSignOrABracket)
{
    expectBrokenOff({
        {"a b = 1\n", {"beginKeyValue"}, "ab=1\n"},
        {"a b = 1\nc = 2\n", {"beginKeyValue"}, "ab=1\nc=2\n"},
        {"[a b]\n", {"beginTable"}, "[ab]\n"},
        {"[]\n", {}, "[]\n"},
        {"[ ]\n", {}, "[]\n"},
        {"[.a]\n", {}, "[.a]\n"},
        {"[1]\n", {}, "[1]\n"},
        {"[[]]\n", {"beginArrayTable"}, "[[]]\n"},
        {"a..b = 1\n", {"beginKeyValue", "beginDottedKey", "visitBareKey a"}, "a..b=1\n"},
    });
}

TEST(TomlRejected, whatTheParserRepairsIsWalkedAndCounted)
{
    const Events dottedA = dotted({bare("a")});
    expectRejected({
        {"[[a]\n", document({arrayTable(bare("a"))}), {parserFailure("[[a]\n"), syntaxErrors(1)}},
        {"a.b c = 1\n",
         document({pair(dotted({bare("a"), bare("b")}), one)}),
         {parserFailure("a.bc=1\n"), syntaxErrors(1)}},
        {"a = [1 2]\n",
         document({pair(bare("a"), array({one}))}),
         {parserFailure("a=[12]\n"), syntaxErrors(1)}},
        {"a = {x = 1\n",
         document({pair(bare("a"), inlineTable({pair(bare("x"), one)}))}),
         {parserFailure("a={x=1\n"), syntaxErrors(1)}},
        {"a = {x = 1\n}\n",
         document({pair(bare("a"), inlineTable({pair(bare("x"), one)}))}),
         {parserFailure("a={x=1\n}\n"), syntaxErrors(1)}},
        {"a. = 1\n",
         document({pair(dottedA, one)}),
         {parserFailure("a.=1\n"), treeFailure(), syntaxErrors(2)}},
        {"[a.]\n",
         document({table(dottedA)}),
         {parserFailure("[a.]\n"), treeFailure(), syntaxErrors(2)}},
    });
}

TEST(TomlRejected, pairsNeedAValue)
{
    expectBrokenOff({
        {"a =\n", pairWithoutValue, "a=\n"},
        {"a = ", pairWithoutValue, "a="},
        {"a = # c\n", pairWithoutValue, "a=\n"},
        {"a =\nb = 2\n", pairWithoutValue, "a=\nb=2\n"},
        {"a = = 1\n", pairWithoutValue, "a==1\n"},
        {"a = hello\n", pairWithoutValue, "a=hello\n"},
        {"a = hello\nb = 2\n", pairWithoutValue, "a=hello\nb=2\n"},
        {"a = ]\n", pairWithoutValue, "a=]\n"},
        {"a = Inf\n", pairWithoutValue, "a=Inf\n"},
        {"a = 0123\n", pairWithoutValue, "a=0123\n"},
        {"a = 1__0\n", pairWithoutValue, "a=1__0\n"},
        {"a = 0x_1\n", pairWithoutValue, "a=0x_1\n"},
        {"a = .5\n", pairWithoutValue, "a=.5\n"},
        {"a = 1979-05\n", pairWithoutValue, "a=1979-05\n"},
    });
}

TEST(TomlRejected, arraysNeedAnElementBetweenCommas)
{
    expectBrokenOff({
        {"a = [,1]\n", concatenated({pairWithoutValue, {"beginArray"}}), "a=[,1]\n"},
        {"a = [1\n", pairWithoutValue, "a=[1\n"},
    });
    for (const std::string text : {"a=[]\n", "a=[b]\n"})
    {
        expectRejected({{text,
                         document({pair(bare("a"), array({}))}),
                         {parserFailure(text), treeFailure(), syntaxErrors(2)}}});
    }
    expectRejected({{"a = [ ]\n",
                     document({pair(bare("a"), array({}))}),
                     {parserFailure("a=[]\n"), treeFailure(), syntaxErrors(2)}}});
    expectUnreadable({{"a = [1,,2]\n", "a=[1,,2]\n"}});
}

TEST(TomlRejected, arraysMayNotBreakLinesElsewhere)
{
    const Messages noteFailures(2, parserFailure("a=[1,\n\n2]\n"));
    expectRejected({
        {"a = [\n 1\n]\n",
         brokenOff({pairWithoutValue}),
         {parserFailure("a=[\n1\n]\n"), walkFailure()}},
        {"a = [\n 1,\n 2,\n]\n",
         document({pair(bare("a"), array({one, two}))}),
         {parserFailure("a=[\n1,\n2,\n]\n"), treeFailure(), syntaxErrors(2)}},
        {"a = [1,\n  # note\n  2]\n",
         document({pair(bare("a"), array({one}))}),
         {noteFailures[0], noteFailures[1], treeFailure(), syntaxErrors(3)}},
    });
}

TEST(TomlRejected, inlineTablesHoldPairsOnOneLineWithoutATrailingComma)
{
    const auto holding = [](const Events& pairs)
    { return document({pair(bare("a"), inlineTable({pairs}))}); };
    expectRejected({
        {"a = {}\n", holding({}), {parserFailure("a={}\n"), treeFailure(), syntaxErrors(2)}},
        {"a = {x}\n", holding({}), {parserFailure("a={x}\n"), treeFailure(), syntaxErrors(2)}},
        {"a = {\nx = 1}\n",
         holding({}),
         {parserFailure("a={\nx=1}\n"), treeFailure(), syntaxErrors(2)}},
        {"a = {x = 1,}\n",
         holding(pair(bare("x"), one)),
         {parserFailure("a={x=1,}\n"), treeFailure(), syntaxErrors(2)}},
    });
    expectBrokenOff({{"a = {[x] = 1}\n",
                      concatenated({pairWithoutValue, {"beginInlineTable", "beginKeyValue"}}),
                      {"a={[x]=1}\n"}}});
    expectUnreadable({{"a = {x = 1 y = 2}\n", "a={x=1y=2}\n"}});
}

TEST(TomlRejected, everyErrorIsLoggedAndCountedInTheOrderOfTheRecognisers)
{
    const Messages twice(2, parserFailure("ab\nab\n"));
    expectRejected({
        {"a b\na b\n", brokenOff({}), {twice[0], twice[1], walkFailure()}},
        {"@\n@@\na = 1\n$\n",
         document({aIsOne}),
         {lexerFailure("@"), lexerFailure("@"), lexerFailure("@"), lexerFailure("$"),
          syntaxErrors(4)}},
        {"a = 1 @ b\n",
         document({}),
         {lexerFailure("@"), parserFailure("a=1b\n"), treeFailure(), syntaxErrors(3)}},
        {"[[a]\n@\n",
         document({arrayTable(bare("a"))}),
         {lexerFailure("@"), parserFailure("[[a]\n\n"), syntaxErrors(2)}},
    });
}

TEST(TomlRejected, theWalksFailureTakesPrecedenceOverTheCount)
{
    expectRejected({
        {"a = @\n",
         brokenOff({pairWithoutValue}),
         {lexerFailure("@"), parserFailure("a=\n"), walkFailure()}},
        {"@a = 1", brokenOff({aIsOne}), {lexerFailure("@"), walkFailure()}},
        {"a.=1", // the tree parser counts an error of its own, too
         brokenOff({pair(dotted({bare("a")}), one)}),
         {parserFailure("a.=1"), treeFailure(), walkFailure()}},
    });
}
