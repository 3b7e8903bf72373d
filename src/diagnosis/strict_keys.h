// The parts of keys, and what they stand for.
#pragma once

#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// The part of a valid key that starts at `begin`, as it is written.
std::string_view keyPart(const char* begin, const char* end);

// Goes over the parts of a valid key.
class KeyParts
{
public:
    explicit KeyParts(std::string_view key);

    std::string_view part() const { return part_; }
    bool isLast() const { return part_.data() + part_.size() == end_; }
    // Goes to the next part; the current one is not the last.
    void next();

private:
    const char* end_;
    std::string_view part_;
};

// What a part stands for, without quotes and escapes.  It may be in the buffer.
std::string_view nameOf(std::string_view part, std::string& buffer);

} // namespace vorn::parsers::toml::diagnosis
