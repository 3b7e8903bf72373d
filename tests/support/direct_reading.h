// The direct reader, switched off.  The program that links this wraps readDirectly()
// and DirectLines::read() (--wrap of the linker); then no document and no line is read.
#pragma once

namespace test
{

// The direct reader does its work while this lives.
class DirectReadingOn
{
public:
    DirectReadingOn();
    DirectReadingOn(const DirectReadingOn&) = delete;
    DirectReadingOn& operator=(const DirectReadingOn&) = delete;
    ~DirectReadingOn();
};

} // namespace test
