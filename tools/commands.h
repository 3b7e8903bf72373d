// The tool's subcommands.  Each returns the worst status of its files.
#pragma once

#include <string>
#include <vector>

#include "fix_switches.h"
#include "status.h"
#include "terminal.h"

namespace tool
{

// How check prints what it finds.
enum class Format
{
    text,
    json,
    sarif,  // the Static Analysis Results Interchange Format, 2.1.0
    github, // commands that GitHub's workflows make annotations of
};

// Of check.
struct CheckOptions
{
    Format format = Format::text;
    bool strict = false;
    bool all = false;
    bool quiet = false;
    std::string standardInput = "-"; // what it is called
};

struct Options
{
    std::vector<std::string> files;
    Colour colour = Colour::automatic;
    CheckOptions check;
    bool dot = false; // of tree
    FixSwitches fix;
};

// Prints the visitor calls of documents as they come.
Status printEvents(const Options& options);

// The same, with the value after each text that converts to one.
Status printValues(const Options& options);

// Prints a line for each document that says whether it is accepted, and explains its errors on
// standard error; or prints both for programs.
Status check(const Options& options);

// Draws documents as trees.
Status printTrees(const Options& options);

// Lists the tokens of documents.
Status printTokens(const Options& options);

// Prints a document as JSON.
Status printJson(const Options& options);

// Rewrites documents of TOML 1.0 into what the library accepts.
Status fixFiles(const Options& options);

} // namespace tool
