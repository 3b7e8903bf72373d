// Why the recognisers do not read a document, or not to its end.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{

struct Refusal
{
    enum class Reason
    {
        none,
        tooDeep,  // for the thread's stack
        tooLarge, // for the memory that is left
    };

    Reason reason = Reason::none;
    unsigned levels = 0; // of arrays and inline tables, where they are too many

    explicit operator bool() const noexcept { return reason != Reason::none; }
};

// What can be said before the recognisers exist, of a text that ends with a NUL.  They read from
// `from` on, after lines that are valid.
Refusal refusalOf(std::string_view text, std::size_t from = 0);

} // namespace vorn::parsers::toml
