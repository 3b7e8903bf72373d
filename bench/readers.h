// The readers that are compared.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench
{

// Reads the text that it was made for, as often as it is called.  Throws if the text is
// rejected.
using Reading = std::function<void()>;

enum class Input
{
    toml,
    json // the document's twin
};

struct Reader
{
    std::string name;
    Input input;
    // `text` outlives what is made for it.
    Reading (*prepare)(const std::string& text);
};

// The library with a visitor whose operations do nothing.
Reading libraryReading(const std::string& text);
// The same, with a visitor that keeps a copy of every text.
Reading copyingReading(const std::string& text);
// The same, with a visitor that converts and stores the values that a program needs.
Reading settingsReading(const std::string& text);
// The library reading a file that holds the text.
Reading fileReading(const std::string& text);
// The library's objects with the direct reader switched off.
Reading pipelineReading(const std::string& text);

// Other parsers, each building its document model and freeing it.
Reading tomlPlusPlusReading(const std::string& text);
Reading cpptomlReading(const std::string& text);
Reading toml11Reading(const std::string& text);

// Parsers of JSON: one builds a model, the other calls a handler that does nothing.
Reading simdjsonReading(const std::string& json);
Reading rapidJsonReading(const std::string& json);
// The code that simdjson has chosen for the processor.
std::string simdjsonImplementation();

// Nothing but looking up the class of each byte.
Reading classesReading(const std::string& text);

inline std::vector<Reader> readers()
{
    return {{"library", Input::toml, libraryReading},
            {"library-copying", Input::toml, copyingReading},
            {"library-settings", Input::toml, settingsReading},
            {"library-file", Input::toml, fileReading},
            {"pipeline", Input::toml, pipelineReading},
            {"toml++", Input::toml, tomlPlusPlusReading},
            {"cpptoml", Input::toml, cpptomlReading},
            {"toml11", Input::toml, toml11Reading},
            {"simdjson", Input::json, simdjsonReading},
            {"RapidJSON", Input::json, rapidJsonReading},
            {"classes", Input::toml, classesReading}};
}

} // namespace bench
