// Lists of visitor calls, built from the constructs that make them.
#pragma once

#include "support/event_recorder.h"

#include <initializer_list>
#include <string>

namespace test
{

inline Events concatenated(std::initializer_list<Events> parts)
{
    Events events;
    for (const Events& part : parts)
    {
        events.insert(events.end(), part.begin(), part.end());
    }
    return events;
}

inline Events enclosed(const std::string& what, std::initializer_list<Events> parts)
{
    return concatenated({{"begin" + what}, concatenated(parts), {"end" + what}});
}

inline Events document(std::initializer_list<Events> parts)
{
    return enclosed("Document", parts);
}

// The calls of a walk that breaks off before the document's end.
inline Events brokenOff(std::initializer_list<Events> parts)
{
    return concatenated({{"beginDocument"}, concatenated(parts)});
}

inline Events scalar(const std::string& operation, const std::string& text)
{
    return {operation + ' ' + text};
}

inline Events integer(const std::string& text)
{
    return scalar("visitInteger", text);
}

inline Events bare(const std::string& text)
{
    return scalar("visitBareKey", text);
}

inline Events quoted(const std::string& text)
{
    return scalar("visitQuotedKey", text);
}

inline Events dotted(std::initializer_list<Events> keys)
{
    return enclosed("DottedKey", keys);
}

inline Events pair(const Events& key, const Events& value)
{
    return enclosed("KeyValue", {key, value});
}

inline Events table(const Events& key)
{
    return enclosed("Table", {key});
}

inline Events arrayTable(const Events& key)
{
    return enclosed("ArrayTable", {key});
}

inline Events array(std::initializer_list<Events> elements)
{
    return enclosed("Array", elements);
}

inline Events inlineTable(std::initializer_list<Events> pairs)
{
    return enclosed("InlineTable", pairs);
}

} // namespace test
