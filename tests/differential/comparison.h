#pragma once

#include "support/reading.h"

#include <string>
#include <vector>

namespace test
{

// What the ways to read a document show.
struct Comparison
{
    Reading library;
    bool direct = false; // whether its direct reader accepts the document
    bool plain = false;  // whether the document is plain text
    Reading pipeline;    // the library with its direct reader switched off
    Reading reference;   // recognisers made by the tool, all of them

    // Whether they show the same.
    bool same() const;

    // Whether the direct reader accepts what is valid, unless it may be unsure of it.
    bool isDirectIfPlain() const { return direct || !plain || !reference.accepted; }

    bool isWell() const { return same() && isDirectIfPlain(); }
};

Comparison compare(const std::string& document);

// The differences, and all that the ways that differ show.
std::string describe(const Comparison& comparison);

// All that a reading shows.
std::string describe(const Reading& reading);

// Whether two readings log the same lines; the numbers of their source lines aside.
bool sameLines(const std::vector<LogLine>& a, const std::vector<LogLine>& b);

} // namespace test
