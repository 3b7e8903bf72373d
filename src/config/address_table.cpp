#include "address_table.h"

#include <cstring>

namespace vorn::parsers::toml::config
{

std::uint32_t AddressTable::find(const void* address, std::uint32_t otherwise) const noexcept
{
    if (places_.empty())
    {
        return otherwise;
    }
    const Place& place = places_[placeOf(address)];
    return place.address == nullptr ? otherwise : place.number;
}

void AddressTable::insert(const void* address, std::uint32_t number)
{
    if (2 * (count_ + 1) > places_.size())
    {
        grow();
    }
    Place& place = places_[placeOf(address)];
    count_ += place.address == nullptr ? 1 : 0;
    place = {address, number};
}

void AddressTable::erase(const void* address) noexcept
{
    if (places_.empty() || places_[placeOf(address)].address == nullptr)
    {
        return;
    }
    --count_;
    std::size_t free = placeOf(address);
    // What comes after a free place and belongs before it moves there.
    for (std::size_t at = after(free); places_[at].address != nullptr; at = after(at))
    {
        const std::size_t mask = places_.size() - 1;
        const std::size_t moved = (at - wantedPlace(places_[at].address)) & mask;
        if (moved >= ((at - free) & mask))
        {
            places_[free] = places_[at];
            free = at;
        }
    }
    places_[free] = {};
}

std::size_t AddressTable::wantedPlace(const void* address) const noexcept
{
    // The lowest bits of addresses are mostly the same; a multiplication mixes the others.
    std::uintptr_t bits = 0;
    std::memcpy(&bits, &address, sizeof(bits));
    const std::uint64_t mixed = std::uint64_t{bits} * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(mixed >> 32U) & (places_.size() - 1);
}

std::size_t AddressTable::placeOf(const void* address) const noexcept
{
    std::size_t place = wantedPlace(address);
    while (places_[place].address != nullptr && places_[place].address != address)
    {
        place = after(place);
    }
    return place;
}

void AddressTable::grow()
{
    constexpr std::size_t first = 16;
    std::vector<Place> old(places_.empty() ? first : 2 * places_.size());
    old.swap(places_);
    for (const Place& place : old)
    {
        if (place.address != nullptr)
        {
            places_[placeOf(place.address)] = place;
        }
    }
}

} // namespace vorn::parsers::toml::config
