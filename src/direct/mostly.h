// What mostly holds.
#pragma once

namespace vorn::parsers::toml
{

// Has the compiler put the case in which a condition does not hold out of the way of the other.
constexpr bool mostly(bool condition)
{
    return __builtin_expect(condition ? 1 : 0, 1) != 0;
}

} // namespace vorn::parsers::toml
