#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "direct/event.h"
#include "direct/plain_sink.h"
#include "strict_mistakes.h"
#include "strict_tables.h"

namespace vorn::parsers::toml::diagnosis
{

// Takes the events of a document's statements, and finds in them what TOML 1.0 forbids.  (What
// it forbids in all of the document is found by findForbiddenBytes().)
class StrictSink : public PlainSink<StrictSink>
{
public:
    // The texts of the events are parts of the document.  Keeps the first `max` mistakes; 0: all.
    StrictSink(std::string_view document, std::size_t max);

    void event(Event event);
    void text(Event event, std::string_view text);
    void keyOfPair(Event event, std::string_view text);

    // The events since the last end were those of a valid statement.
    void lineEnd(const char* position);

    // They were those of an invalid one, or there were none of it: they do not count.  If it
    // could have been a header, or a part of it could have been taken for pairs, it is not known
    // which table the pairs up to the next header are in: their keys are compared with none.
    void statementSkipped();

    // Whether there are `max` mistakes: what comes later need not be read.
    bool isFull() const { return mistakes_.isFull(); }

    // The mistakes of the valid statements, in the order of their places.
    std::vector<Mistake> takeMistakes() { return mistakes_.take(); }

private:
    enum class Statement : std::uint8_t
    {
        unknown,
        header,
        arrayHeader,
        pair,
    };

    void begin(Statement statement);
    void keyEnd();
    void valueBegin(NameKind kind);
    void checkScalar(Event event, std::string_view text);
    void startStatement();

    StrictMistakes mistakes_;
    StrictTables tables_;

    Statement statement_ = Statement::unknown;
    std::string_view key_;             // of the statement
    NameKind value_ = NameKind::value; // its kind, of the statement
    std::size_t depth_ = 0;            // of arrays and inline tables

    // Of the innermost pair:
    std::string_view innerKey_;
    bool isDotted_ = false;    // the key has not ended
    bool awaitsValue_ = false; // the value has not begun
    bool hasEquals_ = false;   // of the statement
    Name* name_ = nullptr;     // in an inline table
    std::vector<StrictTables::InlineTable> inlineTables_;
};

} // namespace vorn::parsers::toml::diagnosis
