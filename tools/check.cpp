#include <cstdio>

#include "commands.h"
#include "ignoring_visitor.h"
#include "input.h"

namespace tool
{

Status check(const std::string& name)
{
    IgnoringVisitor visitor;
    const Status status = visitInput(name, visitor);
    if (status != unreadable)
    {
        std::printf("%s: %s\n", name.c_str(), status == accepted ? "accepted" : "rejected");
    }
    return status;
}

} // namespace tool
