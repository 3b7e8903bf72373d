#include "direct_reading.h"

#include <atomic>
#include <string>

#include "direct_reader.h"

namespace test
{

using vorn::parsers::toml::ITomlTreeVisitor;

// The linker gives these names: callers reach the one that wraps.
bool realReadDirectly(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__real_" READ_DIRECTLY);
bool wrappedReadDirectly(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__wrap_" READ_DIRECTLY);

namespace
{

std::atomic<bool> on{false};

} // namespace

bool wrappedReadDirectly(const std::string& text, ITomlTreeVisitor& visitor)
{
    return on && realReadDirectly(text, visitor);
}

DirectReadingOn::DirectReadingOn()
{
    on = true;
}

DirectReadingOn::~DirectReadingOn()
{
    on = false;
}

} // namespace test
