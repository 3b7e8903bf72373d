// The operations of the visitor's interface, and its table of virtual functions.
#pragma once

#include <vorn/parsers/toml.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

namespace test
{

struct Operation
{
    std::string name;
    bool takesText;
};

// In the order of the interface, which clients are compiled against.
inline const std::vector<Operation> operations = {
    {"beginDocument", false},     {"endDocument", false},
    {"beginKeyValue", false},     {"endKeyValue", false},
    {"beginTable", false},        {"endTable", false},
    {"beginArrayTable", false},   {"endArrayTable", false},
    {"beginDottedKey", false},    {"endDottedKey", false},
    {"visitBareKey", true},       {"visitQuotedKey", true},
    {"beginArray", false},        {"endArray", false},
    {"beginInlineTable", false},  {"endInlineTable", false},
    {"visitBasicString", true},   {"visitMultilineBasicString", true},
    {"visitLiteralString", true}, {"visitMultilineLiteralString", true},
    {"visitInteger", true},       {"visitFloat", true},
    {"visitBoolean", true},       {"visitOffsetDateTime", true},
    {"visitLocalDateTime", true}, {"visitLocalDate", true},
    {"visitLocalTime", true},
};

// The destructor has two entries in the table of virtual functions, which come first.
constexpr std::size_t destructorEntries = 2;

template <typename Function>
Function entry(vorn::parsers::toml::ITomlTreeVisitor& visitor, std::size_t index)
{
    void* const* table = nullptr;
    std::memcpy(&table, static_cast<void*>(&visitor), sizeof(table));
    Function function = nullptr;
    static_assert(sizeof(function) == sizeof(*table));
    std::memcpy(&function, table + index, sizeof(function));
    return function;
}

// Calls an entry of the table that takes no text.
inline void call(vorn::parsers::toml::ITomlTreeVisitor& visitor, std::size_t index)
{
    using Function = void (*)(vorn::parsers::toml::ITomlTreeVisitor*);
    entry<Function>(visitor, index)(&visitor);
}

// Calls one that does.
inline void call(vorn::parsers::toml::ITomlTreeVisitor& visitor, std::size_t index,
                 const char* text)
{
    using Function = void (*)(vorn::parsers::toml::ITomlTreeVisitor*, const char*);
    entry<Function>(visitor, index)(&visitor, text);
}

// Calls the operation in this place of `operations`; the text goes to those that take one.
inline void callOperation(vorn::parsers::toml::ITomlTreeVisitor& visitor, std::size_t index,
                          const char* text)
{
    if (operations.at(index).takesText)
    {
        call(visitor, destructorEntries + index, text);
    }
    else
    {
        call(visitor, destructorEntries + index);
    }
}

} // namespace test
