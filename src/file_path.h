#pragma once

#include <vorn/parsers/toml.h>

#include <cstring>

namespace vorn::parsers::toml
{

// The path's characters.  Clients may come with a path type of their own making that
// starts, like ours, with a pointer to NUL-terminated characters.
inline const char* charactersOf(const FilePath& path) noexcept
{
    const char* text = nullptr;
    static_assert(sizeof(path) >= sizeof(text));
    std::memcpy(&text, static_cast<const void*>(&path), sizeof(text));
    return text;
}

} // namespace vorn::parsers::toml
