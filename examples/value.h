// Values of scalars, where the library's conversions leave something to the visitor.
#pragma once

#include <stdexcept>
#include <string>

namespace example
{

// A value that cannot be taken; what() says why.
class BadValue : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The value of a string of any kind, and the name behind a quoted key, escapes resolved.
//
// Throws BadValue for an escape of a surrogate or of a number above U+10FFFF, which is
// no character, and for a string with a NUL byte, which reaches visitors cut short.
std::string stringValue(const std::string& text);

// The value of a float, infinities and not-a-number included; a magnitude beyond the range
// of double gives the largest one, as parseFloat() has it.
double floatValue(const std::string& text);

} // namespace example
