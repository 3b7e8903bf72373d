// Which mistakes are told, where there are some of several kinds.
#pragma once

#include <cstddef>
#include <vector>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// Adds others, which are about the same document, unless their place has been told.
void addOthers(std::vector<Mistake>&& others, std::vector<Mistake>& mistakes);

// Puts them in the order of their places, and keeps the first ones.
void keepFirst(std::size_t max, std::vector<Mistake>& mistakes);

// In a document of another encoding nothing else means anything: its first error is all.
void leaveOutConsequences(std::vector<Mistake>& mistakes);

} // namespace vorn::parsers::toml::diagnosis
