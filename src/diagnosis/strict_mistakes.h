#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mistake.h"
#include "strict_codes.h"

namespace vorn::parsers::toml::diagnosis
{

// The first mistakes of a document, in the order of their places.  Those of a statement count
// once it is known to be valid.
class StrictMistakes
{
public:
    // Keeps at most `max`; 0: all.
    explicit StrictMistakes(std::string_view document, std::size_t max);

    // Adds one of the current statement, about a part of the document.  `known` goes into the
    // message, and into the hint unless that has words of its own.  The origin, if there is
    // one, is where its name was defined first.
    void add(const StrictRule& rule, std::string_view place, std::string_view known = {},
             std::string_view knownInHint = {}, std::string_view origin = {});

    // The end of a statement: it is valid, or not.
    void keepStatement() { kept_ = mistakes_.size(); }
    void dropStatement() { mistakes_.erase(mistakes_.begin() + kept(), mistakes_.end()); }

    // Whether nothing that comes later is kept.
    bool isFull() const { return max_ != 0 && kept_ == max_; }

    std::vector<Mistake> take();

private:
    std::ptrdiff_t kept() const { return static_cast<std::ptrdiff_t>(kept_); }
    std::size_t offsetOf(std::string_view text) const
    {
        return static_cast<std::size_t>(text.data() - document_);
    }

    const char* document_;
    std::size_t max_;
    std::size_t kept_ = 0;
    std::vector<Mistake> mistakes_;
};

// A key for a message, with a blank before it; empty if it is long, or not easy to read.
std::string shownKey(std::string_view part);

} // namespace vorn::parsers::toml::diagnosis
