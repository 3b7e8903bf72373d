// Why the recognisers do not read a document, or not to its end.
#pragma once

#include <cstddef>

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

// The reason of the stack, for so many levels.
inline Refusal tooDeep(std::size_t levels) noexcept
{
    return {Refusal::Reason::tooDeep, static_cast<unsigned>(levels)};
}

// What can be said before the recognisers exist, of a document of this size: in what they read
// first arrays and inline tables are nested as deeply as this.
Refusal refusalOf(std::size_t size, std::size_t levels);

} // namespace vorn::parsers::toml
