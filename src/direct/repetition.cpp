#include "repetition.h"

#include <cstddef>
#include <cstring>

namespace vorn::parsers::toml
{
namespace
{

void callStarts(RecordEntry entry, VisitorCalls& calls)
{
    if ((entry & startsPair) != 0)
    {
        calls.call(Event::beginKeyValue);
    }
    else if ((entry & startsTable) != 0)
    {
        calls.call(Event::beginTable);
    }
    else if ((entry & startsArrayTable) != 0)
    {
        calls.call(Event::beginArrayTable);
    }
    if ((entry & startsDottedKey) != 0)
    {
        calls.call(Event::beginDottedKey);
    }
}

void callEnds(RecordEntry entry, VisitorCalls& calls)
{
    if ((entry & endsDottedKey) != 0)
    {
        calls.call(Event::endDottedKey);
    }
    if (mostly((entry & endsPair) != 0))
    {
        calls.call(Event::endKeyValue);
    }
    else if ((entry & endsTable) != 0)
    {
        calls.call(Event::endTable);
    }
    else if ((entry & endsArrayTable) != 0)
    {
        calls.call(Event::endArrayTable);
    }
}

void callText(RecordEntry entry, const char* text, VisitorCalls& calls)
{
    if ((entry & anyStart) != 0)
    {
        callStarts(entry, calls);
    }
    switch (eventOf(entry))
    {
    case Event::visitBasicString:
        calls.visitor().visitBasicString(text);
        break;
    case Event::visitInteger:
        calls.visitor().visitInteger(text);
        break;
    default:
        calls.call(eventOf(entry), text);
    }
    if (mostly((entry & anyEnd) != 0))
    {
        callEnds(entry, calls);
    }
}

} // namespace

// The calls that come most often are made without looking the operation up: they are known to be
// virtual, and the processor foresees each of them by itself.
[[gnu::flatten]] const char* repeat(const RecordEntry* entry, const RecordEntry* end,
                                    const char* text, VisitorCalls calls)
{
    while (entry != end)
    {
        RecordEntry current = *entry++;
        std::size_t length = lengthOf(current);
        text += gapOf(current);
        if (!mostly(hasText(current)))
        {
            if (current != 0)
            {
                calls.call(eventOf(current));
                callEnds(current, calls);
                continue;
            }
            LongText numbers = {};
            std::memcpy(&numbers, entry, sizeof(numbers));
            text += numbers.gap;
            length = numbers.length;
            current = entry[longTextEntries];
            entry += longTextEntries + 1;
        }
        const char* const copy = calls.terminated({text, length});
        text += length;
        if (kindOf(current) == entryOf(Event::visitBareKey, startsPair))
        {
            calls.visitor().beginKeyValue();
            calls.visitor().visitBareKey(copy);
        }
        else
        {
            callText(current, copy, calls);
        }
    }
    return text;
}

} // namespace vorn::parsers::toml
