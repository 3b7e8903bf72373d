#pragma once

#include "event.h"
#include "nesting_stack.h"
#include "pair_rules.h"
#include "token_events.h"

namespace vorn::parsers::toml
{

// Follows the rules of arrays and inline tables, however deep they are nested.
template <typename Cursor, typename Sink>
class NestedReader
{
public:
    NestedReader(Cursor& tokens, Sink& sink, NestingStack& nesting)
        : tokens_(tokens), sink_(sink), nesting_(nesting)
    {
    }

    // Reads the array or inline table whose bracket has been taken.  Stops before the first token
    // after it; returns false if it cannot be read.
    bool read(Event bracket)
    {
        After after = enter(bracket);
        while (after == After::pair || after == After::element)
        {
            after = after == After::pair ? pair() : element();
            // What encloses it may end with it.
            while (after == After::end)
            {
                after = afterEnd();
            }
        }
        return after == After::nothing;
    }

private:
    // What comes next.
    enum class After
    {
        pair,    // of an inline table
        element, // of an array
        end,     // the array or inline table has ended
        nothing, // the outermost has ended
        refusal, // cannot be read
    };

    After pair()
    {
        const Event event = readPair(tokens_, sink_);
        return event == Event::endKeyValue ? afterPair() : enter(event);
    }

    After element()
    {
        const TakenText value = takeValue(tokens_);
        if (!hasText(value.event))
        {
            return enter(value.event);
        }
        sink_.text(value.event, value.text);
        return afterElement();
    }

    After enter(Event bracket)
    {
        if (bracket == Event::none)
        {
            return After::refusal;
        }
        sink_.event(bracket);
        if (bracket == Event::beginInlineTable)
        {
            return nesting_.enter(Inside::inlineTable) ? After::pair : After::refusal;
        }
        tokens_.takeNewline();
        return nesting_.enter(Inside::firstElement) ? After::element : After::refusal;
    }

    After afterEnd()
    {
        if (isInArray())
        {
            return afterElement();
        }
        if (nesting_.inside() == Inside::pair)
        {
            return After::nothing;
        }
        sink_.event(Event::endKeyValue);
        return afterPair();
    }

    bool isInArray() const
    {
        return nesting_.inside() == Inside::firstElement ||
               nesting_.inside() == Inside::laterElement;
    }

    After afterPair()
    {
        if (tokens_.take(','))
        {
            return After::pair;
        }
        if (!tokens_.take('}'))
        {
            return After::refusal;
        }
        sink_.event(Event::endInlineTable);
        nesting_.leave();
        return After::end;
    }

    // After an element that is not the first there may be a line break.  After any element,
    // another one commits to a comma and a value.  Without it a bracket or a comma may follow,
    // and after the comma a bracket, or a value with at most one line break before it.
    After afterElement()
    {
        if (takeCommaBeforeValue(tokens_))
        {
            nesting_.setInside(Inside::laterElement);
            return After::element;
        }
        if (nesting_.inside() == Inside::laterElement)
        {
            tokens_.takeNewline();
        }
        const bool committed = tokens_.takeNewline();
        if (tokens_.take(',') && !tokens_.isNext(']'))
        {
            tokens_.takeNewline();
            nesting_.setInside(Inside::laterElement);
            return After::element;
        }
        if (committed || !tokens_.take(']'))
        {
            return After::refusal;
        }
        sink_.event(Event::endArray);
        nesting_.leave();
        return After::end;
    }

    Cursor& tokens_;
    Sink& sink_;
    NestingStack& nesting_;
};

} // namespace vorn::parsers::toml
