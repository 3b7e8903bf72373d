#pragma once

#include <string>
#include <vector>

namespace tool
{

// The files that the arguments name.  In the place of a directory come the files below it whose
// names end in .toml, sorted by their paths; hidden directories and links to directories are
// passed over there.  A directory that cannot be read stays in the list.
//
// Says on standard error if there are none in a directory.
std::vector<std::string> filesOf(const std::vector<std::string>& arguments);

} // namespace tool
