// Values of strings and floats, for JSON.
#pragma once

#include <stdexcept>
#include <string>

namespace tool
{

// A value that cannot be taken; what() says why.
class BadValue : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The value of a string of any kind, or the name in a quoted key, with escapes resolved.
//
// Throws BadValue for an escape that is no character, a surrogate or a number above
// U+10FFFF, and for a string with a NUL byte, which reaches visitors cut short.
std::string stringValue(const std::string& text);

// The value of a float, including infinities and not-a-number.  A magnitude beyond the range
// of double yields the largest one, as with parseFloat().
double floatValue(const std::string& text);

} // namespace tool
