#pragma once

#include "support/reading.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace test
{

// What comes before a line of the log.
struct Moment
{
    std::size_t calls;
    std::size_t displayed; // bytes on standard error
};

// A reading with the order of all that it shows: a moment for each line of the log.
struct OrderedReading : Reading
{
    std::vector<Moment> moments;
};

// What the ways to read a document show.
struct Comparison
{
    OrderedReading library;
    bool direct = false;                    // whether its direct reader accepts the document
    bool plain = false;                     // whether the document is plain text
    std::optional<OrderedReading> pipeline; // the library with its direct reader switched off
    OrderedReading reference;               // recognisers made by the tool, all of them

    // Whether they show the same.
    bool same() const;

    // Whether the direct reader accepts what is valid, unless it may be unsure of it.
    bool isDirectIfPlain() const { return direct || !plain || !reference.accepted; }

    bool isWell() const { return same() && isDirectIfPlain(); }
};

Comparison compare(const std::string& document);

// The same without the pipeline alone where the document is rejected: it is what the library has
// come to then.  For documents that take long.
Comparison compareQuickly(const std::string& document);

// The differences, and all that the ways that differ show.
std::string describe(const Comparison& comparison);

// All that a reading shows.
std::string describe(const Reading& reading);

// Whether two readings log the same lines; the numbers of their source lines aside.
bool sameLines(const std::vector<LogLine>& a, const std::vector<LogLine>& b);

} // namespace test
