// The runtime's objects: how the driver makes them and frees them.
#include <gtest/gtest.h>

#include "pipeline_spy.h"
#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::ITomlTreeVisitor;
using vorn::parsers::toml::visitTomlTree;

namespace
{

const Steps counts = {"count lexer", "count parser", "count tree"};

Steps joined(std::initializer_list<Steps> parts)
{
    return concatenated(parts);
}

// The steps of a reading in which the creation of `object` fails.
Steps stepsUpTo(const std::string& object)
{
    Steps steps;
    Steps freed;
    for (const std::string& step : creation())
    {
        steps.push_back(step);
        if (step == "new " + object)
        {
            break;
        }
        if (step.rfind("new ", 0) == 0)
        {
            const std::string made = step.substr(4);
            freed.insert(freed.begin(), (made == "input" ? "close " : "free ") + made);
        }
    }
    return joined({steps, freed});
}

} // namespace

TEST(PipelineObjects, areMadeInOrderAndFreedInReverse)
{
    for (const std::string text : {"", "a = 1\n", "[t]\na = [1, {b = 'x'}]\n"})
    {
        SCOPED_TRACE(text);
        PipelineSpy spy;
        EXPECT_TRUE(read(text).accepted);
        EXPECT_EQ(spy.steps, joined({creation(), counts, release()}));
    }
}

TEST(PipelineObjects, areMadeWithTheirArguments)
{
    const std::string text = "a = \"\0\xc3\xa9\"\n"s;
    PipelineSpy spy;
    EventRecorder visitor;
    EXPECT_TRUE(visitTomlTree(text, visitor));
    const CreationArguments& arguments = spy.arguments;
    EXPECT_EQ(arguments.data, text.data()); // not a copy
    EXPECT_EQ(arguments.encoding, 8u);      // UTF-8
    EXPECT_EQ(arguments.size, text.size());
    EXPECT_EQ(arguments.name, "toml");
    EXPECT_EQ(arguments.tokensHint, 1025u);
    EXPECT_EQ(arguments.nodesHint, 90000u);
    EXPECT_EQ(arguments.visitor, static_cast<ITomlTreeVisitor*>(&visitor));

    ASSERT_NE(spy.created.document, nullptr);
    EXPECT_EQ(arguments.lexerInput, spy.created.input);
    EXPECT_EQ(arguments.tokenSource, spy.created.tokenSource);
    EXPECT_EQ(arguments.parserTokens, spy.created.tokens);
    // An empty list: the trees come later, statement by statement.
    EXPECT_NE(arguments.nodesTree, nullptr);
    EXPECT_EQ(arguments.nodesChildren, 0u);
    EXPECT_EQ(arguments.treeNodes, spy.created.nodes);
}

TEST(PipelineObjects, thatCannotBeMadeEndTheReading)
{
    for (const auto& [object, message] : std::vector<std::pair<std::string, std::string>>{
             {"input", "Failed to create toml string stream"},
             {"lexer", "Failed to create toml lexer"},
             {"tokens", "Failed to create toml token stream"},
             {"parser", "Failed to create toml parser"},
             {"nodes", "Failed to create toml node stream"},
             {"tree", "Failed to create toml tree"},
         })
    {
        SCOPED_TRACE(object);
        PipelineSpy spy;
        spy.failing = object;
        const Reading reading = read("a = 1\n"s);
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.events, Events());
        expectDriverLog(reading.lines, {message});
        EXPECT_EQ(spy.steps, stepsUpTo(object));
    }
}

TEST(PipelineObjects, thatCannotBeMadeAreLoggedBehindTheErrorsBeforeThem)
{
    PipelineSpy spy;
    spy.failing = "nodes";
    expectDriverLog(read("@\na\n"s).lines, {lexerFailure("@"), parserFailure("\na\n"),
                                            "Failed to create toml node stream"});
    EXPECT_EQ(spy.steps.back(), "close input");
}

TEST(PipelineObjects, areFreedWhenTheWalkFails)
{
    PipelineSpy spy;
    EXPECT_FALSE(read("a = 1"s).accepted);
    EXPECT_EQ(spy.steps, joined({creation(), release()}));
}

TEST(PipelineObjects, areFreedBeforeAnExceptionOfTheVisitorArrives)
{
    struct Stop
    {
        std::size_t event;
    };
    const std::string text = "[t.'u']\n[[v]]\na = [1, {b = \"x\"}]\nc = inf\n@";
    const StderrCapture quiet;
    EventRecorder whole;
    {
        PipelineSpy spy;
        visitTomlTree(text, whole);
    }
    ASSERT_GT(whole.events().size(), 20u);
    for (std::size_t last = 0; last < whole.events().size(); ++last)
    {
        SCOPED_TRACE(last);
        PipelineSpy spy;
        const LogRecorder log;
        EventRecorder visitor;
        visitor.onEvent(
            [&visitor, last](const std::string&)
            {
                if (visitor.events().size() == last + 1)
                {
                    throw Stop{last};
                }
            });
        try
        {
            visitTomlTree(text, visitor);
            ADD_FAILURE() << "the exception did not arrive";
        }
        catch (const Stop& stop)
        {
            EXPECT_EQ(stop.event, last);
            EXPECT_EQ(spy.steps,
                      joined({{"new input", "new lexer", "new tokens", "new parser",
                               "display lexer", "parse", "new nodes", "new tree", "walk"},
                              release()}));
        }
        EXPECT_EQ(visitor.events(),
                  Events(whole.events().begin(),
                         whole.events().begin() + static_cast<std::ptrdiff_t>(last) + 1));
        expectDriverLog(log.lines(), {lexerFailure("@")});
    }
}

TEST(PipelineObjects, errorsAreCountedFromAllRecognisers)
{
    for (const auto& [claimed, sum] : std::vector<std::pair<std::vector<ANTLR3_UINT32>, int>>{
             {{1, 0, 0}, 1}, {{0, 2, 0}, 2}, {{0, 0, 3}, 3}, {{100, 20, 3}, 123}})
    {
        SCOPED_TRACE(sum);
        PipelineSpy spy;
        spy.claimedErrors = claimed;
        const Reading reading = read("a = 1\n"s);
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.events, document({pair(bare("a"), integer("1"))}));
        expectDriverLog(reading.lines, {syntaxErrors(sum)});
        EXPECT_EQ(spy.steps, joined({creation(), counts, release()}));
    }
}

TEST(PipelineObjects, errorsAreNotCountedWhenTheWalkFails)
{
    PipelineSpy spy;
    spy.claimedErrors = {1, 1, 1};
    const Reading reading = read("a = 1"s);
    EXPECT_FALSE(reading.accepted);
    expectDriverLog(reading.lines, {walkFailure()});
    EXPECT_EQ(spy.steps, joined({creation(), release()}));
}
