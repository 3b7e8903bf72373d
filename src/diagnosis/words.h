#pragma once

#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// What kind of mistake it is, a message about its place, and a hint how to fix it.
struct Words
{
    const char* code;
    std::string message;
    std::string hint;
    std::string_view about = {}; // of the document, where that is more than the token
    bool showsOpening = false;   // of the brackets
    std::string afterLine = {};  // the message goes on with the line of the brackets, and this
};

} // namespace vorn::parsers::toml::diagnosis
