// Prints the version of the library, then that of the header.
#include <vorn/parsers/toml.h>

#include <cstdio>

int main()
{
    std::printf("%s\n%d.%d.%d\n", vorn::parsers::toml::version(), VORN_PARSERS_VERSION_MAJOR,
                VORN_PARSERS_VERSION_MINOR, VORN_PARSERS_VERSION_PATCH);
}
