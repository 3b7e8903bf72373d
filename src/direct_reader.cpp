#include "direct_reader.h"

#include "event_record.h"
#include "reader.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{

bool readDirectly(const std::string& text, ITomlTreeVisitor& visitor)
{
    const char* const end = text.data() + text.size();
    // A byte order mark at the very beginning is no part of the document.
    const char* const begin = text.data() + (text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0);
    NestingStack nesting(text.size());
    EventRecord record(begin, end);
    if (!Reader(begin, end, nesting, record).lines())
    {
        return false;
    }

    VisitorCalls calls(visitor, end, record.longestText());
    visitor.beginDocument();
    record.repeat(calls);
    Reader(record.position(), end, nesting, calls).lines();
    visitor.endDocument();
    return true;
}

} // namespace vorn::parsers::toml
