#pragma once

#include <cstddef>
#include <new>
#include <string>

#include "direct/nesting_stack.h"
#include "direct/plain_sink.h"
#include "direct/reader.h"
#include "direct/scratch.h"

namespace vorn::parsers::toml::diagnosis
{

// A sink that only knows where the last pair or header ended; null before there was one.
class LastLine : public PlainSink<LastLine>
{
public:
    void event(Event) noexcept {}
    void text(Event, std::string_view) noexcept {}
    void lineEnd(const char* position) noexcept { end_ = position; }

    const char* end() const noexcept { return end_; }

private:
    const char* end_ = nullptr;
};

// Goes over valid lines of a document.
class ValidLines
{
public:
    // Throws std::bad_alloc if there is no memory for the document's levels of nesting.
    explicit ValidLines(const std::string& text)
        : text_(text), words_(NestingStack::wordsFor(text.size()))
    {
        if (words_.begin() == nullptr)
        {
            throw std::bad_alloc();
        }
    }

    // Returns where the first line starts that is not valid as it is, or the text's size.
    // Lines start at `from`.
    template <typename Sink>
    std::size_t pass(std::size_t from, Sink& sink) const
    {
        NestingStack nesting(words_.begin(), text_.size());
        Reader reader(text_.data() + from, end(), nesting, sink);
        const char* at = text_.data() + from;
        while (!reader.atEnd())
        {
            if (!reader.line())
            {
                return offset(at);
            }
            at = reader.position();
        }
        return text_.size();
    }

    // Reads one line.  Returns whether it is valid.
    template <typename Sink>
    bool read(std::size_t from, Sink& sink) const
    {
        NestingStack nesting(words_.begin(), text_.size());
        Reader reader(text_.data() + from, end(), nesting, sink);
        return reader.line();
    }

    // Whether a valid pair or header comes next, or the document's end.
    bool isNext(std::size_t from) const
    {
        NestingStack nesting(words_.begin(), text_.size());
        LastLine last;
        Reader reader(text_.data() + from, end(), nesting, last);
        while (!reader.atEnd() && last.end() == nullptr)
        {
            if (!reader.line())
            {
                return false;
            }
        }
        return true;
    }

private:
    const char* end() const { return text_.data() + text_.size(); }
    std::size_t offset(const char* at) const { return static_cast<std::size_t>(at - text_.data()); }

    const std::string& text_;
    const Scratch<NestingStack::Word, 64> words_;
};

} // namespace vorn::parsers::toml::diagnosis
