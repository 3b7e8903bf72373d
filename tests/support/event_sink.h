// The direct reader's events as the event recorder has them.
#pragma once

#include "direct/event.h"
#include "direct/plain_sink.h"
#include "direct/visitor_calls.h"

#include "support/event_recorder.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

constexpr auto eventCount = static_cast<std::size_t>(vorn::parsers::toml::Event::none);
constexpr auto firstEventWithText =
    static_cast<std::size_t>(vorn::parsers::toml::Event::visitBareKey);

// The operations that the library calls for its events, in the order of their numbers.
inline const std::vector<std::string> eventNames = []
{
    using vorn::parsers::toml::Event;
    using vorn::parsers::toml::VisitorCalls;
    EventRecorder visitor;
    const std::string_view noText("");
    std::array<char, VisitorCalls::bytesFor(0)> buffer{};
    VisitorCalls calls(visitor, buffer.data(), noText.data());
    for (std::size_t number = 0; number < eventCount; ++number)
    {
        const auto event = static_cast<Event>(number);
        number < firstEventWithText ? calls.call(event)
                                    : calls.call(event, calls.terminated(noText));
    }
    std::vector<std::string> names;
    for (const std::string& event : visitor.events())
    {
        names.push_back(event.substr(0, event.find(' ')));
    }
    return names;
}();

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
    void emptyLines(const char* position) { emptyLineEnds.push_back(position); }

    Events events;
    std::vector<std::string_view> texts;
    std::vector<const char*> lineEnds;
    std::vector<const char*> emptyLineEnds;
};

} // namespace test
