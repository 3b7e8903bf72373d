// The rules of keys and pairs, with each cursor.
#include <gtest/gtest.h>

#include "direct/pair_rules.h"

#include <string>
#include <vector>

#include "direct/direct_cursor.h"
#include "direct/token_cursor.h"
#include "support/event_lists.h"
#include "support/event_sink.h"

using namespace vorn::parsers::toml;
using test::bare;
using test::Events;
using test::integer;
using test::quoted;

namespace
{

template <typename Cursor>
class PairRules : public testing::Test
{
protected:
    // What a rule makes of the start of a text, and what it leaves.
    struct Outcome
    {
        Event event = Event::none;
        Events events;
        std::string rest;
    };

    template <typename Rule>
    static Outcome outcome(const std::string& text, Rule rule)
    {
        Cursor tokens(text.data(), text.data() + text.size());
        test::EventSink sink;
        const Event event = rule(tokens, sink);
        return {event, sink.events, {tokens.position(), text.data() + text.size()}};
    }

    static Outcome pair(const std::string& text)
    {
        return outcome(text, [](Cursor& tokens, test::EventSink& sink)
                       { return readPair(tokens, sink); });
    }

    // Its event is none if the key cannot be read.
    static Outcome headerKey(const std::string& text)
    {
        return outcome(text, [](Cursor& tokens, test::EventSink& sink)
                       { return readHeaderKey(tokens, sink) ? Event::endTable : Event::none; });
    }
};

using Cursors = testing::Types<TokenCursor, DirectCursor, BlockCursor<WordBlock>>;

// After it a block of bytes does not reach the end.
const std::string rest = "\n# " + std::string(60, '-') + "\nb = 1\n";

Events keyThen(const Events& key, const Events& events)
{
    return test::concatenated({{"beginKeyValue"}, key, events});
}

} // namespace

TYPED_TEST_SUITE(PairRules, Cursors, );

TYPED_TEST(PairRules, readAPairOfAScalarToItsEnd)
{
    const Events dottedKey = test::dotted({bare("a"), quoted("'b'")});
    for (const std::string& after : {std::string("\n"), rest, std::string(", c"), std::string()})
    {
        for (const std::string blank : {"", " ", "\t ", "  "})
        {
            SCOPED_TRACE(blank + '|' + after);
            const std::string sign = blank + '=' + blank;
            const auto plain = this->pair("a" + sign + "1" + after);
            EXPECT_EQ(plain.event, Event::endKeyValue);
            EXPECT_EQ(plain.events, test::pair(bare("a"), integer("1")));
            EXPECT_EQ(plain.rest, after);
            const auto inQuotes = this->pair("\"a\"" + sign + "1" + after);
            EXPECT_EQ(inQuotes.event, Event::endKeyValue);
            EXPECT_EQ(inQuotes.events, test::pair(quoted("\"a\""), integer("1")));
            const auto dotted = this->pair("a" + blank + "." + blank + "'b'" + sign + "1" + after);
            EXPECT_EQ(dotted.event, Event::endKeyValue);
            EXPECT_EQ(dotted.events, test::pair(dottedKey, integer("1")));
            EXPECT_EQ(dotted.rest, after);
        }
    }
}

TYPED_TEST(PairRules, readAPairOfAnArrayOrInlineTableToItsBracket)
{
    for (const std::string& after : {std::string("1]\n"), "1]" + rest})
    {
        const auto array = this->pair("a = [" + after);
        EXPECT_EQ(array.event, Event::beginArray);
        EXPECT_EQ(array.events, keyThen(bare("a"), {}));
        EXPECT_EQ(array.rest, after);
        const auto inlineTable = this->pair("'a'.b = {" + after);
        EXPECT_EQ(inlineTable.event, Event::beginInlineTable);
        EXPECT_EQ(inlineTable.events, keyThen(test::dotted({quoted("'a'"), bare("b")}), {}));
        EXPECT_EQ(inlineTable.rest, after);
    }
}

TYPED_TEST(PairRules, readNoPairWithAMistake)
{
    for (const std::string& after : {std::string(), rest})
    {
        for (const std::string text :
             {"", "a", "=", "a =", "a = ]", "a = =", "1.5 = 1", "a. = 1", ".a = 1", "a..b = 1",
              "a.b 1", "a b = 1", "true = 1", "a = @", "a = b", "\"\"\"a\"\"\" = 1", "a = ,"})
        {
            EXPECT_EQ(this->pair(text + after).event, Event::none) << text;
        }
    }
}

TYPED_TEST(PairRules, readTheKeyOfAHeader)
{
    for (const std::string& after : {std::string("]\n"), "]" + rest})
    {
        const auto single = this->headerKey("a" + after);
        EXPECT_EQ(single.event, Event::endTable);
        EXPECT_EQ(single.events, bare("a"));
        EXPECT_EQ(single.rest, after);
        const auto dotted = this->headerKey(" a . 'b'.c " + after);
        EXPECT_EQ(dotted.event, Event::endTable);
        EXPECT_EQ(dotted.events, test::dotted({bare("a"), quoted("'b'"), bare("c")}));
        EXPECT_EQ(dotted.rest, after);
        for (const std::string text : {"", "1.5", "a.", ".a", "a..b", "a.=", "'''a'''", "@"})
        {
            EXPECT_EQ(this->headerKey(text + after).event, Event::none) << text;
        }
    }
}
