#include <cstdio>

#include "commands.h"
#include "ignoring_visitor.h"
#include "input.h"

namespace tool
{

Status check(const std::string& name)
{
    const auto text = readInput(name);
    if (!text)
    {
        return unreadable;
    }
    IgnoringVisitor visitor;
    const bool ok = vorn::parsers::toml::visitTomlTree(*text, visitor);
    std::printf("%s: %s\n", name.c_str(), ok ? "accepted" : "rejected");
    return ok ? accepted : rejected;
}

} // namespace tool
