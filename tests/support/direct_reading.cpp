#include "direct_reading.h"

#include <atomic>
#include <string_view>

#include "direct/direct_lines.h"
#include "direct/direct_reader.h"

namespace test
{

using vorn::parsers::toml::DirectLines;
using vorn::parsers::toml::DirectReading;
using vorn::parsers::toml::ITomlTreeVisitor;

// The linker gives these names: callers reach the one that wraps.
DirectReading realReadDirectly(std::string_view text, ITomlTreeVisitor& visitor) //
    asm("__real_" READ_DIRECTLY);
DirectReading wrappedReadDirectly(std::string_view text, ITomlTreeVisitor& visitor) //
    asm("__wrap_" READ_DIRECTLY);
const char* realReadLines(DirectLines* lines, const char* begin) asm("__real_" READ_LINES);
const char* wrappedReadLines(DirectLines* lines, const char* begin) asm("__wrap_" READ_LINES);

namespace
{

std::atomic<bool> on{false};

} // namespace

DirectReading wrappedReadDirectly(std::string_view text, ITomlTreeVisitor& visitor)
{
    return on.load(std::memory_order_relaxed) ? realReadDirectly(text, visitor)
                                              : DirectReading::refused;
}

const char* wrappedReadLines(DirectLines* lines, const char* begin)
{
    return on.load(std::memory_order_relaxed) ? realReadLines(lines, begin) : begin;
}

DirectReadingOn::DirectReadingOn()
{
    on.store(true, std::memory_order_relaxed);
}

DirectReadingOn::~DirectReadingOn()
{
    on.store(false, std::memory_order_relaxed);
}

} // namespace test
