#pragma once

namespace tool
{

// When to use colours.
enum class Colour
{
    automatic, // on a terminal, unless the user's NO_COLOR or TERM forbids them
    always,
    never,
};

// Whether standard error is a terminal that understands escape sequences.
bool isErrorTerminal();

bool isOutputTerminal();

bool useColour(Colour colour);

} // namespace tool
