#include <vorn/parsers/toml.h>

#define TEXT_OF(number) #number
#define VERSION_TEXT(major, minor, patch) TEXT_OF(major) "." TEXT_OF(minor) "." TEXT_OF(patch)

namespace vorn::parsers::toml
{

const char* version() noexcept
{
    return VERSION_TEXT(VORN_PARSERS_VERSION_MAJOR, VORN_PARSERS_VERSION_MINOR,
                        VORN_PARSERS_VERSION_PATCH);
}

} // namespace vorn::parsers::toml
