// The tool's subcommands.  Each answers with the worst outcome of its files.
#pragma once

#include <string>
#include <vector>

#include "status.h"
#include "terminal.h"

namespace tool
{

struct Options
{
    std::vector<std::string> files;
    Colour colour = Colour::automatic;
    bool json = false; // of check
    bool dot = false;  // of tree
};

// Prints the visitor calls of documents as they come.
Status printEvents(const Options& options);

// The same with the value behind each text that converts to one.
Status printValues(const Options& options);

// Prints one line for each document that says whether it is accepted, and on standard error
// what is wrong with it; or all of this as JSON.
Status check(const Options& options);

// Draws documents as trees.
Status printTrees(const Options& options);

// Lists the tokens of documents.
Status printTokens(const Options& options);

} // namespace tool
