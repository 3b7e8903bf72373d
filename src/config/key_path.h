// Paths of keys, as one writes them in a document.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::parsers::toml::config
{

// The names in "a.\"b c\".d"; nothing if it is no key.
std::optional<std::vector<std::string>> namesIn(std::string_view path);

// A name as a key: quoted, unless it may stand as it is.  `true` and `5` may not.
std::string keyOf(std::string_view name);

// Adds a key to a path.
void addKey(std::string& path, std::string_view name);
// The same for messages: of a long name its start.
void addShownKey(std::string& path, std::string_view name);

} // namespace vorn::parsers::toml::config
