#pragma once

#include "event_visitor.h"

namespace tool
{

// Takes every call and does nothing: for those who want only the result.
class IgnoringVisitor : public EventVisitor
{
    void event(const char*) override {}
    void event(const char*, const char*) override {}
};

} // namespace tool
