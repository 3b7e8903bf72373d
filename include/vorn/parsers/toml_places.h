// vorn_toml_config: where a document has what a visitor is called for.
#ifndef VORN_PARSERS_TOML_PLACES_H
#define VORN_PARSERS_TOML_PLACES_H

#include <cstddef>

#if !defined(VORN_TOML_CONFIG_API)
#if defined(__GNUC__)
#define VORN_TOML_CONFIG_API __attribute__((visibility("default")))
#else
#define VORN_TOML_CONFIG_API
#endif
#endif

namespace vorn::parsers::toml
{

// A place in a document.
struct Place
{
    // Lines and columns count from 1; 0: unknown.
    std::size_t line = 0;
    std::size_t column = 0;
    // In bytes from the start of the text, from 0.
    std::size_t offset = 0;
};

} // namespace vorn::parsers::toml

#endif
