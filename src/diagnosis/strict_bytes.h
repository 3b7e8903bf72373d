#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// Finds the bytes that TOML 1.0 allows nowhere in a document: what is not UTF-8, and control
// characters other than tabs and line breaks.  Adjacent ones of a kind are one mistake.
// Returns the first `max` mistakes of which the place is not told; 0: all.
std::vector<Mistake> findForbiddenBytes(std::string_view text, std::size_t max,
                                        const std::vector<Mistake>& told = {});

} // namespace vorn::parsers::toml::diagnosis
