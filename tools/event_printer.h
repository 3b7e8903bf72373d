#pragma once

#include <cstdio>
#include <optional>
#include <string>

#include "event_visitor.h"

namespace tool
{

// Prints a line for every call: the operation's name and, after a space, its text
// with \n, \r, \t, \\ and \xHH for every other byte that is not printable ASCII.
class EventPrinter : public EventVisitor
{
public:
    explicit EventPrinter(std::FILE* output) : output_(output) {}

private:
    void event(const char* operation) override;
    void event(const char* operation, const char* text) override;

    // What is printed after the text and an arrow, escaped like the text.
    virtual std::optional<std::string> value(const char* operation, const char* text);

    std::FILE* output_;
};

} // namespace tool
