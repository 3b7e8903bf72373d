#pragma once

#include "event.h"
#include "nested_reader.h"
#include "nesting_stack.h"
#include "pair_rules.h"
#include "token_cursor.h"

namespace vorn::parsers::toml
{

// Follows the rules of documents line by line.  Each member stops before the first token after
// what it has read; it returns false if it cannot read that.
template <typename Sink, typename Cursor = TokenCursor>
class Reader
{
public:
    // The text ends with a NUL at `end`.
    Reader(const char* begin, const char* end, NestingStack& nesting, Sink& sink)
        : tokens_(begin, end), nesting_(nesting), sink_(sink)
    {
    }
    // With another cursor than that over a text.
    Reader(Cursor tokens, NestingStack& nesting, Sink& sink)
        : tokens_(tokens), nesting_(nesting), sink_(sink)
    {
    }

    // Reads all lines.
    bool lines()
    {
        while (!tokens_.atEnd())
        {
            if (!line())
            {
                return false;
            }
        }
        return true;
    }

    bool atEnd() const { return tokens_.atEnd(); }

    // Reads a line, or empty ones.
    bool line()
    {
        if (tokens_.takeNewline())
        {
            sink_.emptyLines(tokens_.position());
            return true;
        }
        const bool read = tokens_.take('[') ? header() : pair();
        // A line break must follow, also at the document's end.
        if (!read || !tokens_.takeNewline())
        {
            return false;
        }
        sink_.lineEnd(tokens_.position());
        return true;
    }

    // Before the next token.
    const char* position() const { return tokens_.position(); }

private:
    bool header()
    {
        const bool isOfArray = tokens_.take('[');
        sink_.event(isOfArray ? Event::beginArrayTable : Event::beginTable);
        if (!readHeaderKey(tokens_, sink_) || !tokens_.take(']') ||
            (isOfArray && !tokens_.take(']')))
        {
            return false;
        }
        sink_.event(isOfArray ? Event::endArrayTable : Event::endTable);
        return true;
    }

    bool pair()
    {
        const Event read = readPair(tokens_, sink_);
        if (read == Event::endKeyValue)
        {
            return true;
        }
        NestedReader nested(tokens_, sink_, nesting_);
        if (!nested.read(read))
        {
            return false;
        }
        sink_.event(Event::endKeyValue);
        return true;
    }

    Cursor tokens_;
    NestingStack& nesting_;
    Sink& sink_;
};

} // namespace vorn::parsers::toml
