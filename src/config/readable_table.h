// Whether a document can say what is in a struct.
#pragma once

#include "members.h"

namespace vorn::parsers::toml::config
{

// Whether the tables of an entry, with their required keys, give what is in a member, and no
// problem.  `before` is what the member is before they are read: itself, if it is a default.  Of a
// list each element is a new struct.
bool isReadable(const Entry& entry, const void* member, const void* before);

} // namespace vorn::parsers::toml::config
