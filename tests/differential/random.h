#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>

namespace test
{

// Choices at random.  The same seed makes the same choices.
class Random
{
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    // A number below `limit`.
    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(engine_() % limit); }

    std::size_t between(std::size_t least, std::size_t most)
    {
        return least + below(most - least + 1);
    }

    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    template <std::size_t count>
    std::string_view oneOf(const std::string_view (&choices)[count])
    {
        return choices[below(count)];
    }

    char oneOf(std::string_view characters) { return characters[below(characters.size())]; }

private:
    std::mt19937_64 engine_;
};

} // namespace test
