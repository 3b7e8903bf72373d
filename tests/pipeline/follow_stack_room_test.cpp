// How a parser's stack ends the parsing before the thread's own is used up.
#include <gtest/gtest.h>

#include "pipeline/follow_stack.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/large_documents.h"
#include "support/recognition_errors.h"
#include "support/small_stack.h"

#include "support/parser_pipeline.h"

using vorn::parsers::toml::FollowStack;

namespace
{

constexpr std::size_t kilobyte = 1024;

const std::string document = "a = 1\n";

void pushMany(pANTLR3_BASE_RECOGNIZER recogniser, unsigned count)
{
    static ANTLR3_BITWORD words[] = {1 << 5};
    static ANTLR3_BITSET_LIST set = {words, 1};
    const pANTLR3_STACK following = recogniser->state->following;
    for (unsigned pushed = 0; pushed < count; ++pushed)
    {
        following->push(following, &set, nullptr);
    }
}

// Uses up all but some ten kilobytes of a stack of 64 before it goes on.
[[gnu::noinline]] void withLittleRoom(const std::function<void()>& work)
{
    volatile char frame[50 * kilobyte];
    frame[0] = 0;
    work();
    static_cast<void>(frame[0]);
}

// What a parser tells that parses on a stack of this size.
unsigned levelsWithoutRoom(const std::string& text, std::size_t stackSize)
{
    const test::ParserPipeline pipeline(text);
    test::ErrorKinds errors;
    test::collectErrors(pipeline.recogniser(), errors);
    const FollowStack follows(pipeline.parser()->pParser);
    test::onThread(stackSize, [&pipeline] { pipeline.parser()->document(pipeline.parser()); });
    return follows.levelsWithoutRoom();
}

} // namespace

TEST(FollowStackRoom, endsTheParsingWhereLittleRoomIsLeft)
{
    for (const auto& [rules, levels] : std::vector<std::pair<unsigned, unsigned>>{
             {0, 0}, {1, 0}, {30, 0}, {31, 10}, {32, 10}, {300, 10}})
    {
        SCOPED_TRACE(rules);
        const test::ParserPipeline pipeline(document);
        const pANTLR3_INT_STREAM tokens = pipeline.tokens()->tstream->istream;
        const FollowStack follows(pipeline.parser()->pParser);
        tokens->_LA(tokens, 1); // fills the stream
        test::onThread(64 * kilobyte, [&pipeline, pushed = rules]
                       { withLittleRoom([&] { pushMany(pipeline.recogniser(), pushed); }); });
        EXPECT_EQ(follows.levelsWithoutRoom(), levels);
        EXPECT_EQ(tokens->_LA(tokens, 1) == ANTLR3_TOKEN_EOF, levels > 0);
    }
}

TEST(FollowStackRoom, goesOnWhereThereIsRoomOrNoLimit)
{
    const test::ParserPipeline limited(document);
    const FollowStack parserFollows(limited.parser()->pParser);
    test::onThread(64 * kilobyte, [&limited] { pushMany(limited.recogniser(), 300); });
    EXPECT_EQ(parserFollows.levelsWithoutRoom(), 0u);

    const test::ParserPipeline unlimited(document);
    const FollowStack follows(unlimited.recogniser());
    test::onThread(64 * kilobyte, [&unlimited]
                   { withLittleRoom([&unlimited] { pushMany(unlimited.recogniser(), 300); }); });
    EXPECT_EQ(follows.levelsWithoutRoom(), 0u);
}

TEST(FollowStackRoom, tellsAtHowManyLevelsTheStackEnded)
{
    constexpr unsigned levels = 10'000;
    for (const std::string opening : {"[", "{a=", "[{a="})
    {
        SCOPED_TRACE(opening);
        const std::string text = test::enclosed("a=", opening, levels, "");
        const unsigned onSmall = levelsWithoutRoom(text, 64 * kilobyte);
        const unsigned onLarger = levelsWithoutRoom(text, 128 * kilobyte);
        EXPECT_GE(onSmall, 10u);
        EXPECT_LT(onSmall, 250u);
        EXPECT_GT(onLarger, onSmall);
        EXPECT_LT(onLarger, 500u);
        EXPECT_EQ(levelsWithoutRoom(text, 128 * 1024 * kilobyte), 0u);
    }
}

TEST(FollowStackRoom, leavesDocumentsAloneThatFitASmallStack)
{
    for (const std::string opening : {"[", "{a=", "[{a="})
    {
        const std::string text = test::enclosed("a=", opening, 10, "");
        EXPECT_EQ(levelsWithoutRoom(text, 64 * kilobyte), 0u) << opening;
        EXPECT_EQ(levelsWithoutRoom(text, 128 * kilobyte), 0u) << opening;
    }
}
