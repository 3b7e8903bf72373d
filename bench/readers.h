// The readers that are compared.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench
{

// Reads the document that it was made for, as often as it is called.  Throws if the
// document is refused.
using Reading = std::function<void()>;

struct Reader
{
    std::string name;
    // `text` outlives what is made for it.
    Reading (*prepare)(const std::string& text);
};

// The library with a visitor whose operations do nothing.
Reading libraryReading(const std::string& text);
// The same, with a visitor that keeps a copy of every text.
Reading copyingReading(const std::string& text);
// The library reading a file that holds the text.
Reading fileReading(const std::string& text);
// The library with its direct reader switched off.
Reading pipelineReading(const std::string& text);

// Other parsers, each building its document model and freeing it.
Reading tomlPlusPlusReading(const std::string& text);
Reading cpptomlReading(const std::string& text);
Reading toml11Reading(const std::string& text);

inline std::vector<Reader> readers()
{
    return {{"library", libraryReading},     {"library-copying", copyingReading},
            {"library-file", fileReading},   {"pipeline", pipelineReading},
            {"toml++", tomlPlusPlusReading}, {"cpptoml", cpptomlReading},
            {"toml11", toml11Reading}};
}

} // namespace bench
