// A logger that takes no memory.  Linking it replaces that of the utility library, and that
// of support/log_recorder.h.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace test
{

// The lines since clearLog(), on any thread; at most the first hundred.
void clearLog();
std::size_t loggedLines();
std::vector<std::string> loggedFormats();
// The message of the last line, or its beginning.
const char* lastMessage();

} // namespace test
