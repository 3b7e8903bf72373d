// What is in a struct, by the schema's table.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "table.h"

namespace vorn::parsers::toml::config
{

inline const void* memberOf(const void* object, const Entry& entry)
{
    return static_cast<const char*>(object) + entry.offset;
}

// A reference to a function that takes objects, with their names if they are in a map.  It is
// smaller than a std::function.
class ObjectVisitor
{
public:
    template <typename Function>
    // NOLINTNEXTLINE(google-explicit-constructor): it is an argument.
    // cppcheck-suppress noExplicitConstructor
    ObjectVisitor(const Function& function)
        : function_(&function),
          call_([](const void* context, const void* object, const std::string* name)
                { (*static_cast<const Function*>(context))(object, name); })
    {
    }

    void operator()(const void* object, const std::string* name) const
    {
        call_(function_, object, name);
    }

private:
    const void* function_;
    void (*call_)(const void*, const void*, const std::string*);
};

// Visits the elements of a list or a map, and the value of an optional; otherwise the object.
void visitElements(const Type& type, const void* object, const ObjectVisitor& visitor);

// Visits a struct with the defaults of a table.
void visitDefault(const Table& table, const ObjectVisitor& visitor);

// Whether an object is an optional without a value, or an empty list or map.
bool isBlank(const Type& type, const void* object);

// A type under its optionals; and under its lists and maps, too.
const Type& contentOf(const Type& type);
const Type& leafOf(const Type& type);

// The child of a node that was added next, from a child on; none after the last one.  To start
// with, it is the node.
std::uint32_t nextChild(const Table& table, std::uint32_t node, std::uint32_t child);

// Whether a node is a table: one on the way, or that of an entry.
bool isTable(const Table& table, std::uint32_t node);

// Whether a document must have a key for an entry, or for those of its table.
bool isRequired(const Entry& entry);

} // namespace vorn::parsers::toml::config
