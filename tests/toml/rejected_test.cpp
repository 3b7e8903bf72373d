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

struct Diagnosed
{
    std::string text;
    Events events; // between beginDocument and endDocument
    std::string tokens;
};

// Documents with one error, which the parser has repaired.
void expectRepaired(const std::vector<Diagnosed>& documents)
{
    for (const auto& [text, events, tokens] : documents)
    {
        expectRejected({{text, document({events}), {parserFailure(tokens), syntaxErrors(1)}}});
    }
}

// Documents with one error of the parser, and one of the tree parser, which has repaired it.
void expectRepairedInTheTree(const std::vector<Diagnosed>& documents)
{
    for (const auto& [text, events, tokens] : documents)
    {
        expectRejected(
            {{text, document({events}), {parserFailure(tokens), treeFailure(), syntaxErrors(2)}}});
    }
}

// Documents of which the parser could make no list of lines: its one error node is taken
// for an extra node before the document's end.
void expectUnreadable(const std::vector<std::pair<std::string, std::string>>& documents)
{
    for (const auto& [text, tokens] : documents)
    {
        expectRepairedInTheTree({{text, {}, tokens}});
    }
}

// Documents that break off the walk, after one error of the parser.
void expectBrokenOff(const std::vector<Diagnosed>& documents)
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
    const Events holdingX = pair(bare("a"), inlineTable({pair(bare("x"), one)}));
    expectRepaired({
        {"[[a]\n", arrayTable(bare("a")), "[[a]\n"},
        {"a.b c = 1\n", pair(dotted({bare("a"), bare("b")}), one), "a.bc=1\n"},
        {"a = [1 2]\n", pair(bare("a"), array({one})), "a=[12]\n"},
        {"a = {x = 1\n", holdingX, "a={x=1\n"},
        {"a = {x = 1\n}\n", holdingX, "a={x=1\n}\n"},
    });
    expectRepairedInTheTree({
        {"a. = 1\n", pair(dottedA, one), "a.=1\n"},
        {"[a.]\n", table(dottedA), "[a.]\n"},
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
    const Events aIsEmpty = pair(bare("a"), array({}));
    expectRepairedInTheTree({
        {"a=[]\n", aIsEmpty, "a=[]\n"},
        {"a=[b]\n", aIsEmpty, "a=[b]\n"},
        {"a = [ ]\n", aIsEmpty, "a=[]\n"},
    });
    expectUnreadable({{"a = [1,,2]\n", "a=[1,,2]\n"}});
}

TEST(TomlRejected, arraysMayNotBreakLinesElsewhere)
{
    const Messages noteFailures(2, parserFailure("a=[1,\n\n2]\n"));
    expectBrokenOff({{"a = [\n 1\n]\n", pairWithoutValue, "a=[\n1\n]\n"}});
    expectRepairedInTheTree(
        {{"a = [\n 1,\n 2,\n]\n", pair(bare("a"), array({one, two})), "a=[\n1,\n2,\n]\n"}});
    expectRejected({{"a = [1,\n  # note\n  2]\n",
                     document({pair(bare("a"), array({one}))}),
                     {noteFailures[0], noteFailures[1], treeFailure(), syntaxErrors(3)}}});
}

TEST(TomlRejected, inlineTablesHoldPairsOnOneLineWithoutATrailingComma)
{
    const auto holding = [](const Events& pairs) { return pair(bare("a"), inlineTable({pairs})); };
    expectRepairedInTheTree({
        {"a = {}\n", holding({}), "a={}\n"},
        {"a = {x}\n", holding({}), "a={x}\n"},
        {"a = {\nx = 1}\n", holding({}), "a={\nx=1}\n"},
        {"a = {x = 1,}\n", holding(pair(bare("x"), one)), "a={x=1,}\n"},
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
