// What tokens are in their places.
#include <gtest/gtest.h>

#include "direct/token_events.h"

#include <map>
#include <string>

#include "direct/token_cursor.h"

using namespace vorn::parsers::toml;

namespace
{

constexpr int tokenTypes = 100; // at least

const std::map<TokenType, Event> eventsOfKeys = {
    {TokenType::bareKey, Event::visitBareKey},
    {TokenType::basicString, Event::visitQuotedKey},
    {TokenType::literalString, Event::visitQuotedKey},
};

const std::map<TokenType, Event> eventsOfValues = {
    {TokenType::openBracket, Event::beginArray},
    {TokenType::openBrace, Event::beginInlineTable},
    {TokenType::basicString, Event::visitBasicString},
    {TokenType::mlBasicString, Event::visitMultilineBasicString},
    {TokenType::literalString, Event::visitLiteralString},
    {TokenType::mlLiteralString, Event::visitMultilineLiteralString},
    {TokenType::decInt, Event::visitInteger},
    {TokenType::hexInt, Event::visitInteger},
    {TokenType::octInt, Event::visitInteger},
    {TokenType::binInt, Event::visitInteger},
    {TokenType::floating, Event::visitFloat},
    {TokenType::inf, Event::visitFloat},
    {TokenType::nan, Event::visitFloat},
    {TokenType::boolean, Event::visitBoolean},
    {TokenType::offsetDateTime, Event::visitOffsetDateTime},
    {TokenType::localDateTime, Event::visitLocalDateTime},
    {TokenType::localDate, Event::visitLocalDate},
    {TokenType::localTime, Event::visitLocalTime},
};

Event eventIn(const std::map<TokenType, Event>& events, TokenType type)
{
    const auto found = events.find(type);
    return found != events.end() ? found->second : Event::none;
}

class TokenEvents : public testing::Test
{
protected:
    const std::string text_ = "ab, [ 1 \n";
    TokenCursor tokens_{text_.data(), text_.data() + text_.size()};
};

} // namespace

TEST_F(TokenEvents, areThoseOfTheirTypes)
{
    for (int type = static_cast<int>(TokenType::endOfInput); type < tokenTypes; ++type)
    {
        SCOPED_TRACE(type);
        const auto token = static_cast<TokenType>(type);
        EXPECT_EQ(keyEvent(token), eventIn(eventsOfKeys, token));
        EXPECT_EQ(valueEvent(token), eventIn(eventsOfValues, token));
    }
}

TEST_F(TokenEvents, comeWithTheTextOfTheToken)
{
    const TakenText key = takeKeyPart(tokens_);
    EXPECT_EQ(key.event, Event::visitBareKey);
    EXPECT_EQ(key.text, "ab");
    EXPECT_EQ(takeKeyPart(tokens_).event, Event::none) << "the comma";
    EXPECT_EQ(takeValue(tokens_).event, Event::beginArray);
    const TakenText value = takeValue(tokens_);
    EXPECT_EQ(value.event, Event::visitInteger);
    EXPECT_EQ(value.text, "1");
    EXPECT_EQ(takeValue(tokens_).event, Event::none) << "the line break";
    EXPECT_EQ(takeValue(tokens_).event, Event::none) << "the end";
}

// Most cursors know no more than single tokens.
TEST_F(TokenEvents, areNotTakenTogetherByACursorThatDoesNotSaySo)
{
    std::string_view key = "none";
    EXPECT_FALSE(takePlainKey(tokens_, key));
    EXPECT_EQ(key, "none");
    EXPECT_EQ(tokens_.position(), text_.data());
    tokens_.take();
    EXPECT_FALSE(takeCommaBeforeValue(tokens_));
    EXPECT_TRUE(tokens_.isNext(','));
}
