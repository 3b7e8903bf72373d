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
    const Refusal refusal = tooDeep(levels);
    return mayHaveRoomForLevels(refusal.levels) ? Refusal{} : refusal;
}

} // namespace vorn::parsers::toml
