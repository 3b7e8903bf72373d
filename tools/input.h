#pragma once

#include <vorn/parsers/toml.h>

#include <optional>
#include <string>

#include "progress.h"
#include "status.h"

namespace tool
{

// The whole content of a file, or of standard input for "-"; or why it cannot be read.
struct Content
{
    std::optional<std::string> text;
    std::string problem; // "No such file or directory"
};
Content contentOf(const std::string& name, Progress& progress);

// The line that says that a file, or standard input for "-", cannot be read.
std::string unreadableLine(const std::string& name, const std::string& problem);

// The same content.  If it cannot be read, prints that line on standard error.
std::optional<std::string> readInput(const std::string& name, Progress& progress);

// Reads the document in a file, and calls the visitor.
Status visitInput(const std::string& name, Progress& progress,
                  vorn::parsers::toml::ITomlTreeVisitor& visitor);

} // namespace tool
