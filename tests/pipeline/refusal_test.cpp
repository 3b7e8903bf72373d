// What is said of a document before the recognisers exist, and as a value after it was read.
#include <gtest/gtest.h>

#include "pipeline/refusal.h"
#include "reading.h"

#include <string>

#include "support/log_recorder.h"

using namespace vorn::parsers::toml;

namespace
{

struct Answer
{
    bool accepted;
    Refusal::Reason reason;
};

Answer read(const std::string& text)
{
    const test::LogRecorder log;
    TomlTreeVisitor visitor;
    Refusal refusal;
    const bool accepted = visitTomlTree(text, visitor, refusal);
    return {accepted, refusal.reason};
}

std::string nested(std::size_t levels)
{
    return "a = " + std::string(levels, '[') + "\n";
}

constexpr std::size_t tooMany = 1'000'000;

} // namespace

TEST(Refusal, isNoneWhereTheRecognisersCanRead)
{
    for (const std::size_t levels : {0U, 1U, 10U})
    {
        EXPECT_EQ(refusalOf(1000, levels).reason, Refusal::Reason::none);
        EXPECT_FALSE(refusalOf(1000, levels));
    }
    for (const std::string text : {"", "a = 1\n", "a = 1", "a = [[\n", "@"})
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(read(text).reason, Refusal::Reason::none);
    }
}

TEST(Refusal, isForDepthThatNoStackHasRoomFor)
{
    const Refusal refusal = refusalOf(1000, tooMany);
    EXPECT_TRUE(refusal);
    EXPECT_EQ(refusal.reason, Refusal::Reason::tooDeep);
    EXPECT_EQ(refusal.levels, tooMany);
    EXPECT_FALSE(read(nested(tooMany)).accepted);
    EXPECT_EQ(read(nested(tooMany)).reason, Refusal::Reason::tooDeep);
}

// Only what is not valid goes through the recognisers.
TEST(Refusal, isNotForDepthOfLinesThatAreValid)
{
    const std::string deep =
        "a = " + std::string(tooMany, '[') + "1" + std::string(tooMany, ']') + "\n";
    for (const std::string& text : {deep + "b = 1 2\n", "[t\n" + deep + "\n", deep + "@\n" + deep})
    {
        const Answer answer = read(text);
        EXPECT_FALSE(answer.accepted);
        EXPECT_EQ(answer.reason, Refusal::Reason::none);
    }
}

// The driver finds this out while the parser runs: the direct reader only sees the depth of what is
// not valid first.
TEST(Refusal, isForDepthThatShowsInTheParser)
{
    const std::string text = "a\n" + nested(200'000);
    EXPECT_EQ(read(text).reason, Refusal::Reason::tooDeep);
}

TEST(Refusal, isNotForDepthThatIsAccepted)
{
    const std::string text =
        "a = " + std::string(tooMany, '[') + "1" + std::string(tooMany, ']') + "\n";
    EXPECT_TRUE(read(text).accepted);
    EXPECT_EQ(read(text).reason, Refusal::Reason::none);
}
