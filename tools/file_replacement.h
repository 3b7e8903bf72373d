#pragma once

#include <string>

namespace tool
{

// Replaces the content of a file at once: at any time, even after a crash, the file has either
// all of its old content or all of the new.  Mode and owner stay; a symbolic link leads to the
// same file.  Returns 0, or the errno for which the file is unchanged.
int replaceFile(const std::string& name, const std::string& content);

} // namespace tool
