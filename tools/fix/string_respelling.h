#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tool::fixing
{

// A valid string, or a quoted key, of TOML 1.0 with the same content in a form that the library
// accepts; nothing if it accepts it as it is.
std::optional<std::string> respelledString(std::string_view string);

} // namespace tool::fixing
