#pragma once

#include "support/reading.h"

#include <string>

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

    // Whether the direct reader accepts what is right, unless it may be unsure of it.
    bool isDirectIfPlain() const { return direct || !plain || !reference.accepted; }

    bool isWell() const { return same() && isDirectIfPlain(); }
};

Comparison compare(const std::string& document);

// The differences, and all that the ways that differ show.
std::string describe(const Comparison& comparison);

} // namespace test
