// The ways of reading services into structs that are compared.
#pragma once

#include <string>
#include <vector>

#include "services.h"

namespace bench
{

struct StructReader
{
    std::string name;
    bool fills; // or only reads
    // Throws if the document is refused, or lacks a value.
    Services (*read)(const std::string& text);
};

// The library with a visitor whose operations do nothing.
Services visitedServices(const std::string& text);
// The same, with a visitor that keeps a copy of every text.
Services copiedServices(const std::string& text);
// readConfig(), by a schema.
Services configuredServices(const std::string& text);

// Other parsers: each builds its document model, has the values looked up in it, and frees it.
Services tomlPlusPlusServices(const std::string& text);
Services cpptomlServices(const std::string& text);
Services toml11Services(const std::string& text);

inline std::vector<StructReader> structReaders()
{
    return {{"library", false, visitedServices},      {"library-copying", false, copiedServices},
            {"readConfig", true, configuredServices}, {"toml++", true, tomlPlusPlusServices},
            {"cpptoml", true, cpptomlServices},       {"toml11", true, toml11Services}};
}

} // namespace bench
