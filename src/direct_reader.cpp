#include "direct_reader.h"

#include "event_record.h"
#include "reader.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{

DirectReading readDirectly(const std::string& text, ITomlTreeVisitor& visitor)
{
    const char* const end = text.data() + text.size();
    // A byte order mark at the very beginning is no part of the document.
    const char* const begin = text.data() + (text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0);
    NestingStack nesting(text.size());
    EventRecord record(begin, end);
    if (!nesting.hasMemory() || !record.hasMemory())
    {
        return DirectReading::outOfMemory;
    }
    if (!Reader(begin, end, nesting, record).lines())
    {
        return DirectReading::refused;
    }

    VisitorCalls calls(visitor, end, record.longestText());
    if (!calls.hasMemory())
    {
        return DirectReading::outOfMemory;
    }
    visitor.beginDocument();
    record.repeat(calls);
    Reader(record.position(), end, nesting, calls).lines();
    visitor.endDocument();
    return DirectReading::accepted;
}

} // namespace vorn::parsers::toml
