#pragma once

#include <string>

namespace tool
{

// A file's path without needless parts: conf.d/a.toml for ./conf.d//a.toml.
std::string plainPath(const std::string& name);

// A file's URI, relative as its path is; of an absolute path, with the scheme "file".
std::string uriOf(const std::string& name);

} // namespace tool
