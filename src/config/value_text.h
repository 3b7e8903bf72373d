// Values of members as texts.
#pragma once

#include <string>

#include <vorn/parsers/toml_schema.h>

#include "text.h"

namespace vorn::parsers::toml::config
{

enum class Syntax
{
    toml,
    json, // dates are strings
};

// Each adds the value of an object that is no struct and has none, as an entry takes it.  False if
// the text is no value of the entry, or not that of the object: nothing stands for an optional
// without a value, and there are no empty lists and maps in TOML.
bool addValue(Text& out, const Type& type, const Entry& entry, const void* object, Syntax syntax);
bool addScalar(Text& out, const Type& type, const Entry& entry, const void* object, Syntax syntax);

// The same for a member, whose check is asked.
bool addMember(Text& out, const Entry& entry, const void* member, Syntax syntax);

// The same for a string, and for a key.
bool addString(Text& out, const std::string& value, Syntax syntax);
bool addKey(Text& out, const std::string& name, Syntax syntax);

// Adds a value that an entry may take, to begin with.
void addExample(Text& out, const Type& type, const Entry& entry);

// Whether a check has nothing to say about an object.
bool isAccepted(const Check& check, const void* object);

} // namespace vorn::parsers::toml::config
