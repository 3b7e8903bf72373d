// The files of a configuration.
#pragma once

#include <string>
#include <vector>

#include <vorn/parsers/toml_config.h>

namespace vorn::parsers::toml::config
{

struct InputFile
{
    std::string path;
    std::string text;
};

// Reads files, and all files *.toml of folders in the order of their names.  What cannot be read
// is a problem, unless it does not exist and may be missing.
std::vector<InputFile> readInputs(const std::vector<FilePath>& paths, bool mayBeMissing,
                                  std::vector<Problem>& problems);

} // namespace vorn::parsers::toml::config
