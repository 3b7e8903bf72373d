// Whether something is perhaps defined twice.
#pragma once

namespace vorn::parsers::toml::config
{

// How a document defines something.
enum class How : unsigned char
{
    value = 1,        // by a pair, `a = 1`
    dottedKey = 2,    // on the way of one, `a.b = 1`
    header = 4,       // `[a]`
    headerOfMore = 8, // on the way of one, `[a.b]` or `[[a.b]]`
    arrayHeader = 16, // `[[a]]`
};

// The ways in which something has been defined, and whether TOML 1.0 may forbid one more.  That it
// does so is said by others; this misses nothing, and is wrong about few documents.
class Definition
{
public:
    // Returns whether it was perhaps not to be defined again.
    bool add(How how);
    void clear() { ways_ = 0; }

private:
    unsigned char ways_ = 0;
};

} // namespace vorn::parsers::toml::config
