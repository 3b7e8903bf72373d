// Which mistakes are told, where there are some of several kinds.
#pragma once

#include <cstddef>
#include <vector>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// Where mistakes are told, in the order of their places.
class ToldPlaces
{
public:
    explicit ToldPlaces(const std::vector<Mistake>& told) : told_(told) {}

    // Whether the last mistake up to a place is about it.  Asked for one place after the other.
    bool have(std::size_t place);

private:
    const std::vector<Mistake>& told_;
    std::size_t next_ = 0; // the first one after the place
};

// Adds others, which are about the same document, unless their place has been told.
void addOthers(std::vector<Mistake>&& others, std::vector<Mistake>& mistakes);

// Puts them in the order of their places, and keeps the first ones.
void keepFirst(std::size_t max, std::vector<Mistake>& mistakes);

// In a document of another encoding nothing else means anything: its first error is all.
void leaveOutConsequences(std::vector<Mistake>& mistakes);

} // namespace vorn::parsers::toml::diagnosis
