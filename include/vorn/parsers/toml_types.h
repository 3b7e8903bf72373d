// What a schema knows of a member's type: how its value is stored, without the type itself.
//
// toml_config.h includes this header; nothing in it is for you to use.
#ifndef VORN_PARSERS_TOML_TYPES_H
#define VORN_PARSERS_TOML_TYPES_H

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <vorn/parsers/toml_values.h>

namespace vorn::parsers::toml::config
{

enum class Kind : unsigned char
{
    boolean,
    integer,
    floating,
    string,
    dateTime,
    duration,
    choice,   // an enum
    optional, // of an element
    list,     // of elements: a vector or an array
    map,      // from names to elements
    table,    // a struct, which has a schema of its own
};

// The value of a map at a key, and the key where it is kept.
struct MapSlot
{
    void* value;
    const std::string* key;
    bool isNew;
};

// Gets what is in a map, one after the other.
struct MapVisitor
{
    virtual void visit(const std::string& key, const void* value) = 0;

protected:
    ~MapVisitor() = default;
};

// What can be done with an object of which only the address is known.  Of the functions a kind
// has those that it needs; the others are null.
struct Type
{
    Kind kind;
    // Integers, choices, and what durations count in.
    unsigned char size = 0;
    bool isSigned = false;
    bool isFloating = false;
    std::int64_t min = 0;
    std::int64_t max = 0;
    // Booleans that have no address of their own: sets the last one of a list.
    void (*setLast)(void* list, bool value) = nullptr;
    // Of what an optional, a list or a map has.
    const Type* element = nullptr;
    // Optionals: the value, null if there is none; and the value, which is made if there is none.
    const void* (*find)(const void* object) = nullptr;
    void* (*make)(void* object) = nullptr;
    // Lists.  A list of a fixed size has that many elements; null after the last one.
    std::size_t fixedSize = 0;
    void (*clear)(void* object) = nullptr;
    void* (*append)(void* object, std::size_t index) = nullptr;
    std::size_t (*count)(const void* object) = nullptr;
    const void* (*at)(const void* object, std::size_t index) = nullptr;
    // Maps.
    MapSlot (*insert)(void* object, std::string&& key) = nullptr;
    void (*visitAll)(const void* object, MapVisitor& visitor) = nullptr;
};

template <typename T, typename = void>
struct TypeOf
{
    static_assert(std::is_class_v<T>, "a schema cannot fill a member of this type");
    static constexpr Type value{Kind::table};
};

template <typename T>
inline constexpr const Type& typeOf = TypeOf<T>::value;

// Of a type that is stored like an integer: where its values end, as far as TOML has them.
template <typename T>
constexpr Type storedInteger(Kind kind)
{
    using Limits = std::numeric_limits<T>;
    constexpr bool isWide = sizeof(T) >= sizeof(std::int64_t);
    static_assert(sizeof(T) <= sizeof(std::int64_t), "integers have at most 64 bits");
    Type type{kind};
    type.size = sizeof(T);
    type.isSigned = std::is_signed_v<T>;
    type.min = std::is_signed_v<T> ? static_cast<std::int64_t>(Limits::min()) : 0;
    type.max = isWide ? std::numeric_limits<std::int64_t>::max()
                      : static_cast<std::int64_t>(Limits::max());
    return type;
}

template <typename T>
constexpr Type storedFloat(Kind kind)
{
    static_assert(sizeof(T) <= sizeof(double), "floats have at most 64 bits");
    Type type{kind};
    type.size = sizeof(T);
    type.isFloating = true;
    return type;
}

template <>
struct TypeOf<bool>
{
    static constexpr Type value{Kind::boolean};
};

template <typename T>
struct TypeOf<T, std::enable_if_t<std::is_integral_v<T> && !std::is_same_v<T, bool>>>
{
    static constexpr Type value = storedInteger<T>(Kind::integer);
};

template <typename T>
struct TypeOf<T, std::enable_if_t<std::is_floating_point_v<T>>>
{
    static constexpr Type value = storedFloat<T>(Kind::floating);
};

template <typename T>
struct TypeOf<T, std::enable_if_t<std::is_enum_v<T>>>
{
    static constexpr Type value = storedInteger<std::underlying_type_t<T>>(Kind::choice);
};

template <>
struct TypeOf<std::string>
{
    static constexpr Type value{Kind::string};
};

template <>
struct TypeOf<DateTime>
{
    static constexpr Type value{Kind::dateTime};
};

template <typename Rep, typename Period>
struct TypeOf<std::chrono::duration<Rep, Period>>
{
    static constexpr Type make()
    {
        if constexpr (std::is_floating_point_v<Rep>)
        {
            return storedFloat<Rep>(Kind::duration);
        }
        else
        {
            return storedInteger<Rep>(Kind::duration);
        }
    }
    static constexpr Type value = make();
};

template <typename T>
struct TypeOf<std::optional<T>>
{
    static const void* find(const void* object)
    {
        const auto& optional = *static_cast<const std::optional<T>*>(object);
        return optional.has_value() ? &*optional : nullptr;
    }
    static void* makeValue(void* object)
    {
        auto& optional = *static_cast<std::optional<T>*>(object);
        return optional.has_value() ? &*optional : &optional.emplace();
    }
    static constexpr Type make()
    {
        Type type{Kind::optional};
        type.element = &typeOf<T>;
        type.find = find;
        type.make = makeValue;
        return type;
    }
    static constexpr Type value = make();
};

// What lists have in common; the derived ones say how they grow.
template <typename List>
struct TypeOfList
{
    static std::size_t count(const void* object)
    {
        return static_cast<const List*>(object)->size();
    }
    static const void* at(const void* object, std::size_t index)
    {
        return &(*static_cast<const List*>(object))[index];
    }
    static constexpr Type make(void (*clear)(void*), void* (*append)(void*, std::size_t))
    {
        Type type{Kind::list};
        type.element = &typeOf<typename List::value_type>;
        type.clear = clear;
        type.append = append;
        type.count = count;
        type.at = at;
        return type;
    }
};

template <typename T, typename Allocator>
struct TypeOf<std::vector<T, Allocator>> : TypeOfList<std::vector<T, Allocator>>
{
    using List = std::vector<T, Allocator>;

    static void clear(void* object) { static_cast<List*>(object)->clear(); }
    static void* append(void* object, std::size_t)
    {
        return &static_cast<List*>(object)->emplace_back();
    }
    static constexpr Type value = TypeOfList<List>::make(clear, append);
};

template <typename Allocator>
struct TypeOf<std::vector<bool, Allocator>>
{
    using List = std::vector<bool, Allocator>;

    static void clear(void* object) { static_cast<List*>(object)->clear(); }
    // The element stands for the list, of which it is the last.
    static void* append(void* object, std::size_t)
    {
        static_cast<List*>(object)->push_back(false);
        return object;
    }
    static void setLast(void* list, bool isTrue) { static_cast<List*>(list)->back() = isTrue; }
    static std::size_t count(const void* object)
    {
        return static_cast<const List*>(object)->size();
    }
    static const void* at(const void* object, std::size_t index)
    {
        static constexpr std::array<bool, 2> values{false, true};
        return &values[(*static_cast<const List*>(object))[index] ? 1 : 0];
    }
    static constexpr Type makeElement()
    {
        Type type{Kind::boolean};
        type.setLast = setLast;
        return type;
    }
    static constexpr Type element = makeElement();
    static constexpr Type make()
    {
        Type type{Kind::list};
        type.element = &element;
        type.clear = clear;
        type.append = append;
        type.count = count;
        type.at = at;
        return type;
    }
    static constexpr Type value = make();
};

template <typename T, std::size_t Size>
struct TypeOf<std::array<T, Size>> : TypeOfList<std::array<T, Size>>
{
    using List = std::array<T, Size>;

    static void clear(void* object) { *static_cast<List*>(object) = List{}; }
    static void* append(void* object, std::size_t index)
    {
        return index < Size ? &(*static_cast<List*>(object))[index] : nullptr;
    }
    static constexpr Type make()
    {
        static_assert(Size > 0, "an array has at least one element");
        Type type = TypeOfList<List>::make(clear, append);
        type.fixedSize = Size;
        return type;
    }
    static constexpr Type value = make();
};

template <typename T, typename Compare, typename Allocator>
struct TypeOf<std::map<std::string, T, Compare, Allocator>>
{
    using Map = std::map<std::string, T, Compare, Allocator>;

    static MapSlot insert(void* object, std::string&& key)
    {
        const auto [place, isNew] = static_cast<Map*>(object)->try_emplace(std::move(key));
        return {&place->second, &place->first, isNew};
    }
    static void visitAll(const void* object, MapVisitor& visitor)
    {
        for (const auto& [key, element] : *static_cast<const Map*>(object))
        {
            visitor.visit(key, &element);
        }
    }
    static constexpr Type make()
    {
        Type type{Kind::map};
        type.element = &typeOf<T>;
        type.insert = insert;
        type.visitAll = visitAll;
        return type;
    }
    static constexpr Type value = make();
};

// What is left of a type without its containers: the type that the other arguments of an entry
// are about.
template <typename T>
struct Leaf
{
    using type = T;
};
template <typename T>
struct Leaf<std::optional<T>> : Leaf<T>
{
};
template <typename T, typename Allocator>
struct Leaf<std::vector<T, Allocator>> : Leaf<T>
{
};
template <typename T, std::size_t Size>
struct Leaf<std::array<T, Size>> : Leaf<T>
{
};
template <typename T, typename Compare, typename Allocator>
struct Leaf<std::map<std::string, T, Compare, Allocator>> : Leaf<T>
{
};

template <typename T>
using LeafOf = typename Leaf<T>::type;

} // namespace vorn::parsers::toml::config

#endif
