#include "entry_fault.h"

#include <algorithm>
#include <vector>

namespace vorn::parsers::toml::config
{
namespace
{

// The type of the values in a member, without what holds them.
const Type& leafOf(const Entry& entry)
{
    const Type* type = entry.type;
    while (type->element != nullptr)
    {
        type = type->element;
    }
    return *type;
}

// What is wrong with the choices of an entry; empty if nothing is.
std::string faultOfChoices(const Entry& entry)
{
    const Type& leaf = leafOf(entry);
    std::vector<std::string> names;
    for (const Choice& choice : entry.choices)
    {
        if (choice.type() != &leaf)
        {
            return "the choices of " + entry.path + " are of another type";
        }
        if (std::find(names.begin(), names.end(), choice.name()) != names.end())
        {
            return entry.path + " has the choice " + choice.name() + " twice";
        }
        names.push_back(choice.name());
    }
    return leaf.kind == Kind::choice && names.empty() ? entry.path + " has no choices" : "";
}

bool isEmptyRange(const Entry& entry)
{
    if (!entry.range)
    {
        return false;
    }
    const auto& [min, max] = *entry.range;
    return min.isInteger && max.isInteger ? min.integer > max.integer
                                          : !(min.floating <= max.floating);
}

} // namespace

void narrowRange(Entry& entry)
{
    const Type& leaf = leafOf(entry);
    if (entry.range && leaf.kind == Kind::integer)
    {
        auto [min, max] = *entry.range;
        min.integer = std::max(min.integer, leaf.min);
        max.integer = std::min(max.integer, leaf.max);
        entry.range = {min, max};
    }
}

std::string faultOf(const Entry& entry)
{
    return isEmptyRange(entry) ? "the range of " + entry.path + " is empty" : faultOfChoices(entry);
}

} // namespace vorn::parsers::toml::config
