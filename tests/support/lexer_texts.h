#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace test
{

// Bytes that make differences.
extern const std::string_view tellingBytes;

// Random texts for the lexer; the seed determines them.
class Texts
{
public:
    explicit Texts(unsigned seed) : engine_(seed) {}

    std::string fragmentsInARow();
    std::string damaged(); // the same with a few bytes changed
    std::string bytes();
    std::string nearlyANumber(); // a number or a date-time with one byte changed

private:
    unsigned below(std::size_t limit);
    char byte();
    std::string_view fragment();

    std::mt19937 engine_;
};

} // namespace test
