#include <vorn/parsers/toml_values.h>

namespace vorn::parsers::toml
{

bool booleanValue(std::string_view text) noexcept
{
    return text == "true";
}

} // namespace vorn::parsers::toml
