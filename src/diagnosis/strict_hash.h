#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// Numbers for names in tables, by SipHash-1-3 with a key that each process has its own of.  A
// document cannot be made so that its names have the same numbers.
class StrictHash
{
public:
    StrictHash();

    std::uint32_t operator()(std::uint32_t table, std::string_view name) const;

private:
    std::array<std::uint64_t, 2> key_ = {};
};

} // namespace vorn::parsers::toml::diagnosis
