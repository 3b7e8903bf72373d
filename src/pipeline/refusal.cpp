#include "refusal.h"

#include "document_depth.h"
#include "memory_need.h"
#include "stack_room.h"

namespace vorn::parsers::toml
{

Refusal refusalOf(std::string_view text, std::size_t from)
{
    if (!isMemoryLeft(memoryForLexing(text.size())))
    {
        return {Refusal::Reason::tooLarge};
    }
    const unsigned levels = documentDepth(text.substr(from));
    return mayHaveRoomForLevels(levels) ? Refusal{} : Refusal{Refusal::Reason::tooDeep, levels};
}

} // namespace vorn::parsers::toml
