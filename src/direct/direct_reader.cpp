#include "direct_reader.h"

#include "direct_cursor.h"
#include "event_writer.h"
#include "read_lines.h"
#include "reader.h"
#include "scan/utf8.h"
#include "scratch.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{

// What changes with every token is in registers, since nobody has its address: everything common is
// inlined, and functions of their own take it by value.
[[gnu::flatten]] bool readLines(const char* end, NestingStack nesting, EventRecord& record)
{
    EventWriter writer(record);
    return Reader(DirectCursor(record.position(), end), nesting, writer).lines();
}

DirectReading readDirectly(std::string_view text, ITomlTreeVisitor& visitor)
{
    const std::size_t size = text.size();
    const char* const end = text.data() + size;
    // A byte order mark at the very beginning is no part of the document.
    const char* const begin = text.data() + byteOrderMarkLength(text);

    const Scratch<NestingStack::Word, 64> words(NestingStack::wordsFor(size));
    const Scratch<RecordEntry, 1024> entries(EventRecord::entriesFor(size));
    if (words.begin() == nullptr || entries.begin() == nullptr)
    {
        return DirectReading::outOfMemory;
    }
    const NestingStack nesting(words.begin(), size);
    EventRecord record(entries.begin(), EventRecord::entriesFor(size), begin);
    if (!readLines(end, nesting, record))
    {
        return DirectReading::refused;
    }

    const Scratch<char, 256> buffer(VisitorCalls::bytesFor(record.longestText()));
    if (buffer.begin() == nullptr)
    {
        return DirectReading::outOfMemory;
    }
    VisitorCalls calls(visitor, buffer.begin(), end);
    visitor.beginDocument();
    record.handTo(calls);
    if (record.position() != end)
    {
        readLines(end, nesting, record);
        record.finish();
    }
    visitor.endDocument();
    return DirectReading::accepted;
}

} // namespace vorn::parsers::toml
