// Numbers of things by their addresses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorn::parsers::toml::config
{

// A hash table in one block, which doubles: other than with std::unordered_map, the number of
// allocations hardly grows with that of the addresses.
class AddressTable
{
public:
    // The number at an address; `otherwise` if there is none.
    std::uint32_t find(const void* address, std::uint32_t otherwise) const noexcept;
    void insert(const void* address, std::uint32_t number);
    void erase(const void* address) noexcept;

private:
    struct Place
    {
        const void* address = nullptr; // null: nothing is there
        std::uint32_t number = 0;
    };

    std::size_t wantedPlace(const void* address) const noexcept;
    // Where an address is, or would be.  There is a place for it.
    std::size_t placeOf(const void* address) const noexcept;
    std::size_t after(std::size_t place) const noexcept
    {
        return (place + 1) & (places_.size() - 1);
    }
    void grow();

    std::vector<Place> places_; // none, or a power of two
    std::size_t count_ = 0;     // at most half of the places
};

} // namespace vorn::parsers::toml::config
