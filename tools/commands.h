// The tool's subcommands.  Each returns the worst status of its files.
#pragma once

#include <string>
#include <vector>

#include "fix_switches.h"
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
    FixSwitches fix;
};

// Prints the visitor calls of documents as they come.
Status printEvents(const Options& options);

// The same, with the value after each text that converts to one.
Status printValues(const Options& options);

// Prints a line for each document that says whether it is accepted, and explains its errors on
// standard error; or prints both as JSON.
Status check(const Options& options);

// Draws documents as trees.
Status printTrees(const Options& options);

// Lists the tokens of documents.
Status printTokens(const Options& options);

// Rewrites documents of TOML 1.0 into what the library accepts.
Status fixFiles(const Options& options);

} // namespace tool
