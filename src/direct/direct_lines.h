#pragma once

#include <vorn/parsers/toml.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "event_record.h"
#include "nesting_stack.h"
#include "scratch.h"

namespace vorn::parsers::toml
{

// Reads valid lines of a document, wherever they start.  It is for documents that the recognisers
// read as well, and leaves them most of the stack.
class DirectLines
{
public:
    // For lines of this text, which ends with a NUL and lives as long as this.
    explicit DirectLines(std::string_view text) noexcept;

    // The text's.
    std::size_t size() const noexcept { return text_.size(); }

    // Whether there was memory for it; nothing else may be called if not.
    bool hasMemory() const noexcept;

    // Reads the valid lines that come next, empty ones as well.  Returns where the first token
    // after them starts, or the text's end; that is `begin` if none is valid.  `begin` is the
    // text's start, or the end of line breaks.
    const char* read(const char* begin);

    // How many arrays and inline tables enclose one another in the first statement that is not
    // valid, up to where it is not.
    std::size_t levelsOfInvalid();

    // At least the length of the longest text so far.
    std::size_t longestText() const noexcept { return longestText_; }

    // Hands the lines that were read last to the visitor.  It copies texts into the buffer, which
    // has VisitorCalls::bytesFor(longestText()).
    void handTo(ITomlTreeVisitor& visitor, char* buffer);

private:
    // Levels that are never closed count as well.
    std::size_t maxLevels() const noexcept { return 2 * text_.size(); }

    const std::string_view text_;
    const Scratch<NestingStack::Word, 16> words_;
    const Scratch<RecordEntry, 64> entries_;
    std::optional<EventRecord> record_;
    std::size_t longestText_ = 0;
    std::size_t levels_ = 0;
};

} // namespace vorn::parsers::toml
