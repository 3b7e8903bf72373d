#pragma once

#include "event_visitor.h"

namespace tool
{

// Turns the calls into the nodes of a tree, which the calls in pairs enclose.
class TreeVisitor : public EventVisitor
{
protected:
    // A node, and its text, which is null for those with nodes below; these come until
    // endNode().
    virtual void beginNode(const char* kind) = 0;
    virtual void endNode() = 0;
    virtual void leaf(const char* kind, const char* text) = 0;

private:
    void event(const char* operation) override;
    void event(const char* operation, const char* text) override;
};

} // namespace tool
