#pragma once

#include "event_visitor.h"

namespace tool
{

// Turns the calls into the nodes of a tree: a pair of calls encloses the nodes below it.
class TreeVisitor : public EventVisitor
{
protected:
    // A node with nodes below it; these come before its endNode().
    virtual void beginNode(const char* kind) = 0;
    virtual void endNode() = 0;
    virtual void leaf(const char* kind, const char* text) = 0;

private:
    void event(const char* operation) override;
    void event(const char* operation, const char* text) override;
};

} // namespace tool
