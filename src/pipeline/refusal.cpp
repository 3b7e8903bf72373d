#include "refusal.h"

#include "memory_need.h"
#include "stack_room.h"

namespace vorn::parsers::toml
{

Refusal refusalOf(std::size_t size, std::size_t levels)
{
    if (!isMemoryLeft(memoryForLexing(size)))
    {
        return {Refusal::Reason::tooLarge};
    }
    const auto number = static_cast<unsigned>(levels);
    return mayHaveRoomForLevels(number) ? Refusal{} : Refusal{Refusal::Reason::tooDeep, number};
}

} // namespace vorn::parsers::toml
