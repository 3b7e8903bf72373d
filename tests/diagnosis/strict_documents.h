#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "differential/random.h"

namespace test
{

// Documents at random, of few names, so that the names collide, and of values near the limits.
// Most of them can be read.
class StrictDocuments
{
public:
    explicit StrictDocuments(std::uint64_t seed) : random_(seed) {}

    std::string next();

private:
    void statement();
    void header();
    void pair(unsigned depth);
    void key();
    void keyPart();
    void value(unsigned depth);
    void array(unsigned depth);
    void inlineTable(unsigned depth);
    void string();
    void dateTime();
    void soup();
    void damage();
    void blanks();

    void add(std::string_view text) { text_ += text; }
    template <std::size_t count>
    void addOne(const std::string_view (&choices)[count])
    {
        text_ += random_.oneOf(choices);
    }

    Random random_;
    std::string text_;
    bool isOfNamesOnly_ = false; // with nothing else that is forbidden
};

} // namespace test
