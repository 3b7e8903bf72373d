// What the formats of a description have in common.
#pragma once

#include <string>
#include <string_view>

#include "members.h"
#include "text.h"

namespace vorn::parsers::toml::config
{

// Each describes a table, with a struct that has the defaults.
void describeInMarkdown(Text& out, const Table& table, const void* object);
void describeInToml(Text& out, const Table& table, const void* object);
void describeInJsonSchema(Text& out, const Table& table, const void* object);

// Adds "an integer, 1 to 65535", `an array of strings, each one of "a", "b"`.
void addTaken(Text& out, const Entry& entry);

// A path within another one, which may be empty.
std::string pathWithin(const std::string& path, const std::string& rest);

// Adds the header of a table of an entry: "[path]", or "[[path]]".
void addHeader(Text& out, const Entry& entry, const std::string& path);

} // namespace vorn::parsers::toml::config
