#pragma once

#include <string_view>

#include "event.h"

namespace vorn::parsers::toml
{

// Sinks take a document's events in order: event(), text() for those with a text, and
// lineEnd().  Where a pair's key has one part, the pair's begin and the key come as one,
// keyOfPair(), and so do a scalar and the end of its pair, valueOfPair().  A sink that gains
// nothing by that takes them apart again.
template <typename Sink>
class PlainSink
{
public:
    void keyOfPair(Event event, std::string_view text)
    {
        self().event(Event::beginKeyValue);
        self().text(event, text);
    }

    void valueOfPair(Event event, std::string_view text)
    {
        self().text(event, text);
        self().event(Event::endKeyValue);
    }

private:
    friend Sink;
    PlainSink() = default;

    Sink& self() { return static_cast<Sink&>(*this); }
};

} // namespace vorn::parsers::toml
