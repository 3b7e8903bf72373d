#include "direct_lines.h"

#include <algorithm>

#include "read_lines.h"
#include "scan/utf8.h"
#include "visitor_calls.h"

namespace vorn::parsers::toml
{

DirectLines::DirectLines(std::string_view text) noexcept
    : text_(text), words_(NestingStack::wordsFor(maxLevels())),
      entries_(EventRecord::entriesFor(text.size()))
{
}

bool DirectLines::hasMemory() const noexcept
{
    return words_.begin() != nullptr && entries_.begin() != nullptr;
}

const char* DirectLines::read(const char* begin)
{
    record_.emplace(entries_.begin(), EventRecord::entriesFor(text_.size()), begin);
    levels_ = 0;
    readLines(text_.data() + text_.size(), NestingStack(words_.begin(), maxLevels(), &levels_),
              *record_);
    longestText_ = std::max(longestText_, record_->longestText());
    return record_->linesEnd();
}

std::size_t DirectLines::levelsOfInvalid()
{
    read(read(text_.data() + byteOrderMarkLength(text_)));
    return levels_;
}

void DirectLines::handTo(ITomlTreeVisitor& visitor, char* buffer)
{
    const char* const end = record_->linesEnd();
    VisitorCalls calls(visitor, buffer, text_.data() + text_.size());
    record_->handTo(calls);
    if (record_->position() != end)
    {
        readLines(end, NestingStack(words_.begin(), maxLevels()), *record_);
        record_->finish();
    }
}

} // namespace vorn::parsers::toml
