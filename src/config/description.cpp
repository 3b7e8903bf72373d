#include "description.h"

#include <cstdint>

#include "expectation.h"

namespace vorn::parsers::toml::config
{

void addTaken(Text& out, const Entry& entry)
{
    const Type& type = contentOf(*entry.type);
    const Type& leaf = leafOf(type);
    out << expectationOf(type, entry);
    if (type.fixedSize != 0)
    {
        out << ", " << static_cast<std::int64_t>(type.fixedSize)
            << (type.fixedSize == 1 ? " element" : " elements");
    }
    const char* const each = &leaf == &type ? ", " : ", each ";
    // The limits of 64 bits are those of TOML, and not worth a word.
    const bool isWidest = leaf.isSigned && leaf.size == sizeof(std::int64_t);
    const std::string limits = limitsOf(leaf, entry);
    if (!limits.empty() && (entry.range || !isWidest))
    {
        out << each << limits;
    }
    if (!entry.choices.empty())
    {
        out << each << "one of " << choicesOf(entry);
    }
}

std::string pathWithin(const std::string& path, const std::string& rest)
{
    return path.empty() ? rest : path + '.' + rest;
}

void addHeader(Text& out, const Entry& entry, const std::string& path)
{
    const bool isList = entry.type->kind == Kind::list;
    out << (isList ? "[[" : "[") << path << (isList ? "]]" : "]");
}

} // namespace vorn::parsers::toml::config
