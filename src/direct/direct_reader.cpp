#include "direct_reader.h"

#include "event_record.h"
#include "reader.h"
#include "scan/utf8.h"
#include "scratch.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{
namespace
{

// Reads lines that are known to be valid and calls the visitor: for documents that are too
// long to be recorded whole, which do not need it inlined.
[[gnu::noinline]] void visitLines(const char* begin, const char* end, NestingStack nesting,
                                  VisitorCalls calls)
{
    Reader(begin, end, nesting, calls).lines();
}

// Calls the visitor for the recorded lines.  Inlined into readDirectly(), this loop would run
// out of registers: GCC 12 then stores each event's kind as one byte and loads eight at that
// place right away, so that the look-up of the operation waits for the store.  On its own it
// saves 1 to 4 % of the whole time (x86-64, the mean of eight placements of the code, each of
// which changes the time by up to 7 % in either direction).
[[gnu::noinline]] void visitRecorded(const EventRecord& record, VisitorCalls calls)
{
    record.repeat(calls);
}

} // namespace

// With everything inlined, the positions in the text and in the record stay in registers.
[[gnu::flatten]] DirectReading readDirectly(std::string_view text, ITomlTreeVisitor& visitor)
{
    const std::size_t size = text.size();
    const char* const end = text.data() + size;
    // A byte order mark at the very beginning is no part of the document.
    const char* const begin = text.data() + byteOrderMarkLength(text);

    const Scratch<NestingStack::Word, 64> words(NestingStack::wordsFor(size));
    const Scratch<EventRecord::Byte, 2048> bytes(EventRecord::bytesFor(size));
    if (words.begin() == nullptr || bytes.begin() == nullptr)
    {
        return DirectReading::outOfMemory;
    }
    NestingStack nesting(words.begin(), size);
    EventRecord record(bytes.begin(), EventRecord::bytesFor(size), begin);
    if (!Reader(begin, end, nesting, record).lines())
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
    visitRecorded(record, calls);
    if (record.position() != end)
    {
        visitLines(record.position(), end, NestingStack(words.begin(), size), calls);
    }
    visitor.endDocument();
    return DirectReading::accepted;
}

} // namespace vorn::parsers::toml
