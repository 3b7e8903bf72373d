// Scalars of a document to objects of which only the type is known.
#pragma once

#include <string>

#include <vorn/parsers/toml_schema.h>

#include "scalar.h"

namespace vorn::parsers::toml::config
{

// What is wrong with a value.
struct Complaint
{
    std::string message; // empty: nothing
    std::string hint;
    // The value is none, like the 30th of February; the diagnosis may know more.
    bool isNoValue = false;
};

// Stores a scalar, unless it is of the wrong kind or not within the limits of the entry.  The
// type is that of a scalar, not of an optional, a list, a map or a table.
Complaint assign(const Scalar& scalar, const Type& type, const Entry& entry, void* object);

} // namespace vorn::parsers::toml::config
