#include "document_depth.h"

#include <algorithm>

#include "direct/plain_sink.h"
#include "direct/reader.h"
#include "direct/scratch.h"
#include "scan/utf8.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// A sink that counts the levels of nesting.
class Levels : public PlainSink<Levels>
{
public:
    void event(Event event) noexcept
    {
        switch (event)
        {
        case Event::beginArray:
        case Event::beginInlineTable:
            ++open_;
            max_ = std::max(max_, open_);
            break;
        case Event::endArray:
        case Event::endInlineTable:
            --open_;
            break;
        default:
            break;
        }
    }
    void text(Event, std::string_view) noexcept {}
    void lineEnd(const char*) noexcept {}

    unsigned max() const noexcept { return max_; }

private:
    unsigned open_ = 0;
    unsigned max_ = 0;
};

} // namespace

unsigned documentDepth(std::string_view text)
{
    text.remove_prefix(byteOrderMarkLength(text));
    // Levels that are never closed count as well.
    const std::size_t size = 2 * text.size();
    const Scratch<NestingStack::Word, 64> words(NestingStack::wordsFor(size));
    NestingStack nesting(words.begin(), words.begin() != nullptr ? size : 0);
    Levels levels;
    Reader(text.data(), text.data() + text.size(), nesting, levels).lines();
    return levels.max();
}

} // namespace vorn::parsers::toml::diagnosis
