#include <vorn/parsers/toml.h>

#define VORN_TEXT_OF(number) #number
#define VORN_VERSION(major, minor, patch)                                                          \
    VORN_TEXT_OF(major) "." VORN_TEXT_OF(minor) "." VORN_TEXT_OF(patch)

namespace vorn::parsers::toml
{

const char* version() noexcept
{
    return VORN_VERSION(VORN_PARSERS_VERSION_MAJOR, VORN_PARSERS_VERSION_MINOR,
                        VORN_PARSERS_VERSION_PATCH);
}

} // namespace vorn::parsers::toml
