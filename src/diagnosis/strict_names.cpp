#include "strict_names.h"

#include <limits>
#include <new>

#include "strict_keys.h"

namespace vorn::parsers::toml::diagnosis
{

std::string_view Name::text(const char* documentEnd) const
{
    return keyPart(part, documentEnd);
}

TableId Names::newTable()
{
    if (lastTable_ == std::numeric_limits<TableId>::max())
    {
        throw std::bad_alloc(); // After 2^32 tables.  GCOVR_EXCL_LINE
    }
    return ++lastTable_;
}

Names::Found Names::at(TableId table, std::string_view part)
{
    if (slots_.size() / 4 * 3 <= names_.size())
    {
        grow();
    }
    const std::string_view name = nameOf(part, buffer_);
    const std::uint32_t hash = hash_(table, name);
    std::size_t slot = firstSlot(hash);
    for (; slots_[slot] != 0; slot = slotAfter(slot))
    {
        if (isAt(slot, table, hash, name))
        {
            return {&names_[slots_[slot] - 1], false};
        }
    }
    names_.push_back({part.data(), table, 0, hash, NameKind::value});
    slots_[slot] = static_cast<std::uint32_t>(names_.size());
    return {&names_.back(), true};
}

void Names::restore(State state)
{
    while (names_.size() > state.count)
    {
        forgetLast();
    }
    lastTable_ = state.lastTable;
}

bool Names::isAt(std::size_t slot, TableId table, std::uint32_t hash, std::string_view name)
{
    const Name& other = names_[slots_[slot] - 1];
    return other.hash == hash && other.table == table &&
           nameOf(other.text(documentEnd_), otherBuffer_) == name;
}

void Names::forgetLast()
{
    std::size_t slot = firstSlot(names_.back().hash);
    while (slots_[slot] != names_.size())
    {
        slot = slotAfter(slot);
    }
    slots_[slot] = 0;
    names_.pop_back();
}

void Names::grow()
{
    constexpr std::size_t first = 64;
    const std::size_t count = slots_.empty() ? first : slots_.size() * 2;
    if (count > std::numeric_limits<std::uint32_t>::max())
    {
        throw std::bad_alloc(); // After as many keys.  GCOVR_EXCL_LINE
    }
    // The old ones are not needed to make the new ones.
    slots_ = {};
    slots_.resize(count);
    std::uint32_t number = 0;
    for (const Name& name : names_)
    {
        std::size_t slot = firstSlot(name.hash);
        while (slots_[slot] != 0)
        {
            slot = slotAfter(slot);
        }
        slots_[slot] = ++number;
    }
}

} // namespace vorn::parsers::toml::diagnosis
