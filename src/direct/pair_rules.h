// The rules of keys and pairs.  They stop before the first token after what they have read.
#pragma once

#include <string_view>

#include "event.h"
#include "token_events.h"

namespace vorn::parsers::toml
{

// Reads a key of several parts, of which the first has been taken; returns whether it could.
template <typename Cursor, typename Sink>
bool readDottedKey(Cursor& tokens, Sink& sink, TakenText part)
{
    sink.event(Event::beginDottedKey);
    while (part.event != Event::none)
    {
        sink.keyPart(part.event, part.text);
        if (!tokens.take('.'))
        {
            sink.event(Event::endDottedKey);
            return true;
        }
        part = takeKeyPart(tokens);
    }
    return false;
}

// Reads the key of a header; returns whether it could.
template <typename Cursor, typename Sink>
bool readHeaderKey(Cursor& tokens, Sink& sink)
{
    const TakenText part = takeKeyPart(tokens);
    if (tokens.isNext('.'))
    {
        return readDottedKey(tokens, sink, part);
    }
    if (part.event == Event::none)
    {
        return false;
    }
    sink.keyPart(part.event, part.text);
    return true;
}

// Reads the key of a pair, and the sign after it; returns whether it could.
template <typename Cursor, typename Sink>
bool readPairKey(Cursor& tokens, Sink& sink)
{
    const TakenText part = takeKeyPart(tokens);
    if (tokens.isNext('.'))
    {
        sink.event(Event::beginKeyValue);
        return readDottedKey(tokens, sink, part) && tokens.take('=');
    }
    if (part.event == Event::none || !tokens.take('='))
    {
        return false;
    }
    sink.keyOfPair(part.event, part.text);
    return true;
}

// Reads a pair, of an array or inline table the bracket only.  Returns the event of that bracket;
// that of the pair's end, if its value is a scalar; none if it cannot be read.
template <typename Cursor, typename Sink>
Event readPair(Cursor& tokens, Sink& sink)
{
    std::string_view key;
    const bool isPlain = takePlainKey(tokens, key);
    if (!isPlain && !readPairKey(tokens, sink))
    {
        return Event::none;
    }
    const TakenText value = takeValue(tokens);
    if (!hasText(value.event))
    {
        if (isPlain)
        {
            sink.keyOfPair(Event::visitBareKey, key);
        }
        return value.event;
    }
    isPlain ? sink.pair(key, value.event, value.text) : sink.valueOfPair(value.event, value.text);
    return Event::endKeyValue;
}

} // namespace vorn::parsers::toml
