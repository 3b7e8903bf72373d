#pragma once

#include <cstddef>
#include <string>

namespace tool::fixing
{

// Where a text is not TOML 1.0, and why.
struct Mistake
{
    std::size_t offset;
    std::string message;
};

} // namespace tool::fixing
