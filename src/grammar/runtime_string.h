#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml
{

// The characters of a runtime string, never null: a string without text has none.
inline const char* characters(const ANTLR3_STRING* string) noexcept
{
    return string != nullptr && string->chars != nullptr
               ? reinterpret_cast<const char*>(string->chars)
               : "";
}

} // namespace vorn::parsers::toml
