// What is written like that in other files, in words.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "mistake.h"
#include "site.h"
#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

// The marker that version control leaves at the start of a line where two changes collide.
std::optional<Mistake> mergeConflictAt(std::string_view text, std::size_t at);

// A comment of another language: // or ; or /*.
std::optional<Mistake> foreignCommentAt(std::string_view text, std::size_t at);

// A colon between a key and its value.
std::optional<Mistake> colonAt(std::string_view text, std::size_t at);

// Words after a key that is not followed by an equals sign, outside of inline tables.
Words forWords(const Site& site);

} // namespace vorn::parsers::toml::diagnosis
