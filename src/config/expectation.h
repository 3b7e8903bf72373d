// What a member takes, in words.
#pragma once

#include <string>

#include <vorn/parsers/toml_schema.h>

namespace vorn::parsers::toml::config
{

// "an integer", "a number of seconds", "an array of strings", "a table"
std::string expectationOf(const Type& type, const Entry& entry);

// "1 to 65535": what numbers an entry may have; empty if there is no limit but that of doubles.
std::string limitsOf(const Type& type, const Entry& entry);

// "65535"
std::string limitText(const Limit& limit);

// `"debug", "info", "error"`
std::string choicesOf(const Entry& entry);

// A number as a document has it, the shortest one that is read as the same.
std::string textOf(double number);

} // namespace vorn::parsers::toml::config
