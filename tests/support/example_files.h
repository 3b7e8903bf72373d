// The configurations in examples/ and the lists of their events in tests/examples/.  The
// places of both come from the build.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace test
{

// The names, without `extension`, of the files in a directory that end in it.
inline std::vector<std::string> namesIn(const std::string& directory, const std::string& extension)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory))
    {
        if (entry.path().extension() == extension)
        {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

inline std::vector<std::string> exampleNames()
{
    return namesIn(VORN_EXAMPLES, ".toml");
}

inline std::string examplePath(const std::string& name)
{
    return std::string(VORN_EXAMPLES) + '/' + name + ".toml";
}

inline std::string exampleEventsPath(const std::string& name)
{
    return std::string(VORN_EXAMPLE_EVENTS) + '/' + name + ".events";
}

} // namespace test
