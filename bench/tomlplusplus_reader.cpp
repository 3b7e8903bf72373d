#include "readers.h"

#include <toml++/toml.h>

namespace bench
{

Reading tomlPlusPlusReading(const std::string& text)
{
    return [&text] { [[maybe_unused]] const auto model = toml::parse(text); };
}

} // namespace bench
