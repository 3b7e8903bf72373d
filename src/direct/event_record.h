#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "record_entry.h"
#include "repetition.h"

namespace vorn::parsers::toml
{

// Keeps the events of a document's first lines, so that they can be repeated to a visitor without
// reading those lines again.  It is bounded whatever the size of the document.
//
// As long as nobody knows whether the document is valid, entries that it has no room for are
// lost.  Afterwards the visitor gets what there is whenever there is no room: so the rest of the
// document, read again, comes to the visitor.
class EventRecord
{
public:
    // The entries for a document of this many bytes.  Few have more events.
    static constexpr std::size_t entriesFor(std::size_t size)
    {
        return std::min(size / 2, maxEntries) + spare;
    }

    // Writes into as many entries; the document starts at `begin`.
    EventRecord(RecordEntry* entries, std::size_t count, const char* begin) noexcept
        : begin_(entries), last_(entries), full_(entries + count - spare),
          spare_(entries + count - spare + longestEntry), text_(begin), position_(begin)
    {
    }

    // Where the kept lines end.
    const char* position() const noexcept { return position_; }

    // Where all lines end that have come, kept or not.
    const char* linesEnd() const noexcept { return hasLost_ ? lostEnd_ : position_; }

    // At least the length of the longest text that has come.
    std::size_t longestText() const noexcept { return longestText_; }

    // The document is valid: the visitor gets the kept lines, and what comes from now on.
    void handTo(VisitorCalls& calls)
    {
        calls_ = &calls;
        hasLost_ = false;
        finish();
        text_ = position_;
    }

    // The visitor gets what has come since.
    void finish()
    {
        hand(last_);
        last_ = begin_;
    }

private:
    friend class EventWriter;

    static constexpr std::size_t maxEntries = std::size_t{128} * 1024;
    // After what can be kept there is room for an entry that has begun to be written, and for
    // one that is lost.
    static constexpr std::size_t spare = 2 * longestEntry;

    void hand(const RecordEntry* last) { text_ = repeat(begin_, last, text_, *calls_); }

    // Returns where to write the next entry if there is no room for it at `last`.
    [[gnu::noinline, gnu::cold]] RecordEntry* makeRoom(const RecordEntry* last)
    {
        if (calls_ == nullptr)
        {
            loseFromHere();
            return spare_;
        }
        hand(last);
        return begin_;
    }

    void loseFromHere() noexcept
    {
        if (!hasLost_)
        {
            hasLost_ = true;
            lostEnd_ = position_;
        }
    }

    // Writes what comes before the entry of a text that is long, or far from the one before.
    // Returns the place of that entry.
    [[gnu::noinline, gnu::cold]] RecordEntry* writeNumbers(RecordEntry* last, std::size_t gap,
                                                           std::size_t length) noexcept
    {
        longestText_ = std::max(longestText_, length);
        const LongText text = {gap, length};
        last[0] = 0;
        std::memcpy(last + 1, &text, sizeof(text));
        return last + 1 + longTextEntries;
    }

    // All events of the lines before `position` have come.
    void keepLines(RecordEntry* last, const char* position) noexcept
    {
        if (hasLost_)
        {
            lostEnd_ = position;
            return;
        }
        last_ = last;
        position_ = position;
    }

    RecordEntry* const begin_;
    RecordEntry* last_;        // of the kept lines
    RecordEntry* const full_;  // after it there may be no room
    RecordEntry* const spare_; // for what is lost
    const char* text_;         // the end of the last text that the visitor got
    const char* position_;
    const char* lostEnd_ = nullptr; // of the last line that was not kept, or of those that were
    std::size_t longestText_ = maxShortText;
    bool hasLost_ = false;
    VisitorCalls* calls_ = nullptr;
};

} // namespace vorn::parsers::toml
