#include "readers.h"

#include <toml.hpp>

#include <sstream>

namespace bench
{

// It reads streams only, so that a text takes one.
Reading toml11Reading(const std::string& text)
{
    return [&text]
    {
        std::istringstream stream(text);
        [[maybe_unused]] const auto model = toml::parse(stream);
    };
}

} // namespace bench
