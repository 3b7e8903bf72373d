#pragma once

#include "event_printer.h"

namespace tool
{

// Prints a line for every call, with the value that the library's conversions give for
// the text: strings and quoted keys without quotes, with escapes as written; booleans
// and numbers; date-times in the local zone and, in parentheses, as seconds since the
// epoch.  Bare keys, local dates and local times, which have no conversion, stay as they
// are.  An exception of a conversion is shown in the value's place.
class ValuePrinter : public EventPrinter
{
public:
    using EventPrinter::EventPrinter;

private:
    std::optional<std::string> value(const char* operation, const char* text) override;
};

} // namespace tool
