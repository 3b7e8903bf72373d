#include "strict_hash.h"

#include <array>
#include <cstddef>
#include <cstring>

#include <sys/auxv.h>

namespace vorn::parsers::toml::diagnosis
{
namespace
{

using Word = std::uint64_t;

constexpr Word rotated(Word word, unsigned bits)
{
    return word << bits | word >> (64 - bits);
}

class State
{
public:
    explicit State(const std::array<Word, 2>& key)
        : a_(key[0] ^ 0x736F6D6570736575U), b_(key[1] ^ 0x646F72616E646F6DU),
          c_(key[0] ^ 0x6C7967656E657261U), d_(key[1] ^ 0x7465646279746573U)
    {
    }

    void add(Word word)
    {
        d_ ^= word;
        mix();
        a_ ^= word;
    }

    Word result()
    {
        c_ ^= 0xFF;
        mix();
        mix();
        mix();
        return a_ ^ b_ ^ c_ ^ d_;
    }

private:
    void mix()
    {
        a_ += b_;
        b_ = rotated(b_, 13) ^ a_;
        a_ = rotated(a_, 32);
        c_ += d_;
        d_ = rotated(d_, 16) ^ c_;
        a_ += d_;
        d_ = rotated(d_, 21) ^ a_;
        c_ += b_;
        b_ = rotated(b_, 17) ^ c_;
        c_ = rotated(c_, 32);
    }

    Word a_;
    Word b_;
    Word c_;
    Word d_;
};

} // namespace

// The key is made of the 16 bytes by chance that the kernel gives each process.
StrictHash::StrictHash()
{
    // An address, as the kernel hands it over.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    const void* const bytes = reinterpret_cast<const void*>(getauxval(AT_RANDOM));
    if (bytes != nullptr)
    {
        std::memcpy(key_.data(), bytes, sizeof(key_));
    }
}

std::uint32_t StrictHash::operator()(std::uint32_t table, std::string_view name) const
{
    State state(key_);
    // The table and the length, in one word, make the padding of the last one unambiguous.
    state.add(Word{table} << 32 | static_cast<std::uint32_t>(name.size()));
    while (!name.empty())
    {
        Word word = 0;
        const std::size_t size = name.size() < sizeof(word) ? name.size() : sizeof(word);
        std::memcpy(&word, name.data(), size);
        state.add(word);
        name.remove_prefix(size);
    }
    return static_cast<std::uint32_t>(state.result());
}

} // namespace vorn::parsers::toml::diagnosis
