// The direct reader's events as the event recorder has them.
#pragma once

#include "direct/event.h"
#include "direct/plain_sink.h"

#include "support/event_recorder.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

// The operations in the order of the events' numbers.
inline const std::vector<std::string> eventNames = {
    "beginKeyValue",      "endKeyValue",
    "beginTable",         "endTable",
    "beginArrayTable",    "endArrayTable",
    "beginDottedKey",     "endDottedKey",
    "beginArray",         "endArray",
    "beginInlineTable",   "endInlineTable",
    "visitBareKey",       "visitQuotedKey",
    "visitBasicString",   "visitMultilineBasicString",
    "visitLiteralString", "visitMultilineLiteralString",
    "visitInteger",       "visitFloat",
    "visitBoolean",       "visitOffsetDateTime",
    "visitLocalDateTime", "visitLocalDate",
    "visitLocalTime"};

constexpr std::size_t firstEventWithText =
    static_cast<std::size_t>(vorn::parsers::toml::Event::visitBareKey);

// A sink that keeps events as the recorder of visitor calls does.
class EventSink : public vorn::parsers::toml::PlainSink<EventSink>
{
public:
    using Event = vorn::parsers::toml::Event;

    void event(Event event) { events.push_back(eventNames.at(static_cast<std::size_t>(event))); }
    void text(Event event, std::string_view text)
    {
        events.push_back(eventNames.at(static_cast<std::size_t>(event)) + ' ' + std::string(text));
        texts.push_back(text);
    }
    void lineEnd(const char* position) { lineEnds.push_back(position); }

    Events events;
    std::vector<std::string_view> texts;
    std::vector<const char*> lineEnds;
};

} // namespace test
