// Numbers to integers, floats and durations of any size.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <vorn/parsers/toml_schema.h>

namespace vorn::parsers::toml::config
{

// The number of a document.
struct Number
{
    bool isInteger;
    std::int64_t integer;
    double floating; // of integers, too: the nearest one
};

// The value of a text; nothing if it is beyond 64 bits.
std::optional<Number> integerOf(std::string_view text);
std::optional<Number> floatOf(std::string_view text);

// Whether it is within the range of the entry, if that has one.
bool isWithin(const Number& number, const Type& type, const Entry& entry);

// Whether the type holds numbers of that size.
bool canStore(const Number& number, const Type& type, const Entry& entry);

// Stores a number that the type can hold.  False if a duration that counts whole units would lose
// a part of it.
bool store(const Number& number, const Type& type, const Entry& entry, void* object);

// Stores an integer that the type holds.
void storeInteger(std::int64_t value, const Type& type, void* object);

} // namespace vorn::parsers::toml::config
