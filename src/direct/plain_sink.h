#pragma once

#include <string_view>

#include "event.h"

namespace vorn::parsers::toml
{

// A sink takes a document's events in order: event(), text() for those with a text, lineEnd(), and
// emptyLines() where lines end that have no more than comments.  Two events that come together most
// of the time come as one call: keyOfPair() is the start of a pair and its key, of one part;
// valueOfPair() is a scalar and the end of its pair.  The parts of other keys come by keyPart():
// something starts or ends with many of them.  A sink that gains nothing by that derives from this
// one, which takes them apart.
template <typename Sink>
class PlainSink
{
public:
    void keyOfPair(Event event, std::string_view text)
    {
        self().event(Event::beginKeyValue);
        self().text(event, text);
    }

    void pair(std::string_view key, Event event, std::string_view value)
    {
        self().keyOfPair(Event::visitBareKey, key);
        self().valueOfPair(event, value);
    }

    void keyPart(Event event, std::string_view text) { self().text(event, text); }

    void emptyLines(const char*) noexcept {}

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
