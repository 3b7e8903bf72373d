// Schemas: which keys a configuration has, and which members of a struct they fill.
//
//   struct Server { std::string host; std::uint16_t port = 80; std::vector<std::string> names; };
//
//   const Schema<Server>& serverSchema()
//   {
//       static const Schema<Server> schema = Schema<Server>()
//           .required("host", &Server::host)
//           .optional("port", &Server::port, range(1, 65535), "The port that it listens on.")
//           .optional("names", &Server::names);
//       return schema;
//   }
//
// readConfig() of toml_config.h reads a document by it, describe() documents it.
#ifndef VORN_PARSERS_TOML_SCHEMA_H
#define VORN_PARSERS_TOML_SCHEMA_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <ratio>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <vorn/parsers/toml_types.h>

namespace vorn::parsers::toml
{

// What becomes of keys that a schema does not have.
enum class Unknown
{
    problem, // the configuration is not filled
    warning, // it is filled, and a problem says so that is a warning
    ignored,
};

// The limits of a number, both included.  range() makes one.
template <typename Number>
struct Range
{
    // The least and the greatest number.
    Number min;
    Number max;
};

// A value of an enum with its name in documents.  oneOf() takes them.
class Choice
{
public:
    // A name without quotes: {"debug", Level::debug}.
    template <typename Enum, typename = std::enable_if_t<std::is_enum_v<Enum>>>
    Choice(std::string name, Enum value)
        : name_(std::move(name)), value_(static_cast<std::int64_t>(value)),
          type_(&config::typeOf<Enum>)
    {
    }

    // The name, the value as a number, and which enum has it.
    const std::string& name() const { return name_; }
    std::int64_t value() const { return value_; }
    const config::Type* type() const { return type_; }

private:
    std::string name_;
    std::int64_t value_;
    const config::Type* type_;
};

// What oneOf() returns.
struct Choices
{
    // In the order of oneOf().
    std::vector<Choice> choices;
};

// What unit() returns.
template <typename Duration>
struct Unit
{
};

// Limits the numbers that an entry may have: range(1, 65535), range(0.1, 60.0).  Of a list or a
// map it limits each element, of a duration the number that the document has.
template <typename Min, typename Max>
constexpr Range<std::common_type_t<Min, Max>> range(Min min, Max max)
{
    static_assert(std::is_arithmetic_v<Min> && std::is_arithmetic_v<Max>, "the limits are numbers");
    using Number = std::common_type_t<Min, Max>;
    return {static_cast<Number>(min), static_cast<Number>(max)};
}

// The names that the values of an enum have in documents, all there are:
// oneOf({{"debug", Level::debug}, {"info", Level::info}}).
inline Choices oneOf(std::initializer_list<Choice> choices)
{
    return {choices};
}

// What the number of a duration counts in the document: unit<std::chrono::seconds>().  The
// document may have a fraction, 1.5, if the member can hold it.
template <typename Duration>
constexpr Unit<Duration> unit()
{
    return {};
}

// Internals, which the templates below need.
namespace config
{

struct Table;

// Returns what is wrong with an object, or an empty string.
using Check = std::function<std::string(const void* object)>;
// Calls a function with an object as it is when nobody has filled it.
using WithDefault = void (*)(const std::function<void(const void* object)>& function);

// A number as a limit: an integer, or a double.
struct Limit
{
    bool isInteger = true;
    std::int64_t integer = 0;
    double floating = 0;
};

struct Entry
{
    std::string path; // as the schema has it: "dns.timeout"
    bool isRequired = false;
    const Type* type = nullptr;
    std::size_t offset = 0; // of the member in the struct
    std::optional<std::pair<Limit, Limit>> range;
    std::vector<Choice> choices;
    // Durations: the unit in the document over the one of the member, and what to call it.
    std::int64_t unitNumerator = 1;
    std::int64_t unitDenominator = 1;
    std::string unitName;
    Check check;
    std::string description;
    std::shared_ptr<const Table> table; // of the structs in it
};

VORN_TOML_CONFIG_API std::shared_ptr<Table> makeTable(WithDefault withDefault);
VORN_TOML_CONFIG_API void addEntry(Table& table, Entry&& entry);
VORN_TOML_CONFIG_API void addCheck(Table& table, Check&& check, std::vector<std::string>&& paths);
VORN_TOML_CONFIG_API void setUnknownKeys(Table& table, Unknown unknown);
// "seconds", "milliseconds", or "1/60 seconds" for one without a name.
VORN_TOML_CONFIG_API std::string nameOfUnit(long long numerator, long long denominator);

// How far a member is from the start of its struct.
template <typename Struct, typename Member, typename Owner>
std::size_t offsetOf(Member Owner::*member)
{
    static_assert(std::is_base_of_v<Owner, Struct>, "the member is of the schema's struct");
    alignas(Struct) static char memory[sizeof(Struct)];
    const void* const start = memory;
    const void* const place = &(static_cast<const Struct*>(start)->*member);
    return static_cast<std::size_t>(static_cast<const char*>(place) - memory);
}

// (Integers of TOML have 63 bits and a sign; what is beyond them is no limit.)
template <typename Number>
constexpr Limit limitOf(Number number)
{
    if constexpr (std::is_integral_v<Number>)
    {
        constexpr auto last = std::numeric_limits<std::int64_t>::max();
        const bool isBeyond =
            number > 0 && static_cast<std::uint64_t>(number) > static_cast<std::uint64_t>(last);
        const auto integer = isBeyond ? last : static_cast<std::int64_t>(number);
        return {true, integer, static_cast<double>(integer)};
    }
    else
    {
        return {false, 0, static_cast<double>(number)};
    }
}

template <typename T>
inline constexpr bool isDuration = false;
template <typename Rep, typename Period>
inline constexpr bool isDuration<std::chrono::duration<Rep, Period>> = true;
template <typename T>
inline constexpr bool isUnit = false;
template <typename Duration>
inline constexpr bool isUnit<Unit<Duration>> = true;

template <typename T>
struct IsOptional : std::false_type
{
    using Value = T;
};
template <typename T>
struct IsOptional<std::optional<T>> : std::true_type
{
    using Value = T;
};

// What can follow the member of an entry.

template <typename Member, typename Number>
void apply(Entry& entry, const Range<Number>& range)
{
    using Value = LeafOf<Member>;
    constexpr bool isNumber = std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>;
    static_assert(isNumber || isDuration<Value>, "a range is of a number");
    static_assert(!std::is_integral_v<Value> || std::is_integral_v<Number>,
                  "the limits of an integer are integers");
    entry.range = {limitOf(range.min), limitOf(range.max)};
}

template <typename Member>
void apply(Entry& entry, const Choices& choices)
{
    static_assert(std::is_enum_v<LeafOf<Member>>, "oneOf() is for enums");
    entry.choices = choices.choices;
}

template <typename Member, typename Duration>
void apply(Entry& entry, const Unit<Duration>&)
{
    static_assert(isDuration<LeafOf<Member>>, "unit() is for durations");
    using Factor = std::ratio_divide<typename Duration::period, typename LeafOf<Member>::period>;
    entry.unitNumerator = Factor::num;
    entry.unitDenominator = Factor::den;
    entry.unitName = nameOfUnit(Duration::period::num, Duration::period::den);
}

// What a check has said.  A null pointer says nothing, as an empty string.
template <typename Said>
std::string messageOf(Said&& said)
{
    if constexpr (std::is_pointer_v<std::decay_t<Said>>)
    {
        return said != nullptr ? said : "";
    }
    else
    {
        return std::forward<Said>(said);
    }
}

template <typename Member, typename Argument>
void apply(Entry& entry, const Argument& argument)
{
    using Value = typename IsOptional<Member>::Value;
    if constexpr (std::is_convertible_v<Argument, std::string>)
    {
        entry.description = argument;
    }
    else if constexpr (std::is_invocable_r_v<std::string, const Argument&, const Member&>)
    {
        entry.check = [argument](const void* member)
        { return messageOf(argument(*static_cast<const Member*>(member))); };
    }
    else
    {
        constexpr bool isCheck = std::is_invocable_r_v<std::string, const Argument&, const Value&>;
        static_assert(isCheck, "what follows a member is range(), oneOf(), unit(), a description, "
                               "or a check, which takes the member and returns a text");
        if constexpr (isCheck)
        {
            entry.check = [argument](const void* member)
            {
                const auto& value = *static_cast<const Member*>(member);
                return value.has_value() ? messageOf(argument(*value)) : std::string();
            };
        }
    }
}

} // namespace config

// Which keys fill which members of a struct.  Copies share what they know, so they are cheap; do
// not add entries to one that is in use.
//
// A path is written as in a document: "port", "dns.timeout", "link.\"5 GHz\"".  What may follow
// the member, in any order: range(), oneOf() and unit(), which some types need; a check of your
// own, any callable that takes the member and returns an empty string, or what is wrong with it
// ("is not an IP address"); and a description, a sentence for whoever writes the file.
//
// A member may be a bool, an integer of any kind, a float or a double, a std::string, a DateTime,
// a std::chrono::duration with unit(), an enum with oneOf(), and a std::optional, a std::vector, a
// std::array or a std::map<std::string, T> of these and of each other.  An integer in a document
// may fill a float.
template <typename Struct>
class Schema
{
public:
    Schema() : table_(config::makeTable(withDefault))
    {
        static_assert(std::is_default_constructible_v<Struct>, "the struct is made by Struct{}");
    }

    // A key that a document must have.
    template <typename Member, typename Owner, typename... Arguments>
    Schema& required(std::string path, Member Owner::*member, const Arguments&... arguments)
    {
        return value(true, std::move(path), member, arguments...);
    }

    // A key that a document may have.  Without it the member stays as it is.
    template <typename Member, typename Owner, typename... Arguments>
    Schema& optional(std::string path, Member Owner::*member, const Arguments&... arguments)
    {
        return value(false, std::move(path), member, arguments...);
    }

    // A table, `[path]` or an inline one, that fills a struct.  If the member is a
    // std::optional, the table may be missing; otherwise its required keys must be there.
    template <typename Member, typename Owner, typename Inner, typename... Arguments>
    Schema& table(std::string path, Member Owner::*member, const Schema<Inner>& schema,
                  const Arguments&... arguments)
    {
        static_assert(std::is_same_v<typename config::IsOptional<Member>::Value, Inner>,
                      "the member is a struct of the schema's, or a std::optional of one");
        return structs(std::move(path), member, schema, arguments...);
    }

    // An array of tables, `[[path]]`, or an array of inline tables: each fills an element of a
    // std::vector or a std::array.
    template <typename Member, typename Owner, typename Inner, typename... Arguments>
    Schema& tables(std::string path, Member Owner::*member, const Schema<Inner>& schema,
                   const Arguments&... arguments)
    {
        constexpr bool isList = config::typeOf<Member>.kind == config::Kind::list;
        static_assert(isList && std::is_same_v<config::LeafOf<Member>, Inner>,
                      "the member is a std::vector or a std::array of the schema's struct");
        return structs(std::move(path), member, schema, arguments...);
    }

    // Tables with names, `[path.eth0]`: each fills an element of a std::map<std::string, Struct>.
    template <typename Member, typename Owner, typename Inner, typename... Arguments>
    Schema& tablesByName(std::string path, Member Owner::*member, const Schema<Inner>& schema,
                         const Arguments&... arguments)
    {
        constexpr bool isMap = config::typeOf<Member>.kind == config::Kind::map;
        static_assert(isMap && std::is_same_v<config::LeafOf<Member>, Inner>,
                      "the member is a std::map of std::string to the schema's struct");
        return structs(std::move(path), member, schema, arguments...);
    }

    // A check of the whole struct, once it is filled: any callable that takes it and returns an
    // empty string, or what is wrong ("end is before begin").  `paths` are the keys that this is
    // about.  It is not called where the struct has other problems.
    template <typename Callable>
    Schema& check(const Callable& callable, std::vector<std::string> paths)
    {
        static_assert(std::is_invocable_r_v<std::string, const Callable&, const Struct&>,
                      "a check takes the struct and returns what is wrong with it");
        config::addCheck(
            *table_,
            [callable](const void* object)
            { return config::messageOf(callable(*static_cast<const Struct*>(object))); },
            std::move(paths));
        return *this;
    }

    // What becomes of other keys here and in the structs within, unless their schemas say it
    // themselves.  Otherwise they are problems.
    Schema& unknownKeys(Unknown unknown)
    {
        config::setUnknownKeys(*table_, unknown);
        return *this;
    }

    // For the library.
    const std::shared_ptr<config::Table>& internals() const { return table_; }

private:
    template <typename Member, typename Owner, typename... Arguments>
    Schema& value(bool isRequired, std::string&& path, Member Owner::*member,
                  const Arguments&... arguments)
    {
        using Value = config::LeafOf<Member>;
        constexpr bool isStruct = config::typeOf<Value>.kind == config::Kind::table;
        static_assert(!isStruct, "a schema cannot fill a member of this type; structs are added by "
                                 "table(), tables() or tablesByName()");
        static_assert(!std::is_enum_v<Value> || (std::is_same_v<Arguments, Choices> || ...),
                      "the values of an enum have names: oneOf()");
        static_assert(!config::isDuration<Value> || (config::isUnit<Arguments> || ...),
                      "the number of a duration has a unit: unit<std::chrono::seconds>()");
        return add(isRequired, std::move(path), member, nullptr, arguments...);
    }

    template <typename Member, typename Owner, typename Inner, typename... Arguments>
    Schema& structs(std::string&& path, Member Owner::*member, const Schema<Inner>& schema,
                    const Arguments&... arguments)
    {
        return add(false, std::move(path), member, schema.internals(), arguments...);
    }

    template <typename Member, typename Owner, typename... Arguments>
    Schema& add(bool isRequired, std::string&& path, Member Owner::*member,
                std::shared_ptr<const config::Table> table, const Arguments&... arguments)
    {
        config::Entry entry;
        entry.path = std::move(path);
        entry.isRequired = isRequired;
        entry.type = &config::typeOf<Member>;
        entry.offset = config::offsetOf<Struct>(member);
        entry.table = std::move(table);
        (config::apply<Member>(entry, arguments), ...);
        config::addEntry(*table_, std::move(entry));
        return *this;
    }

    static void withDefault(const std::function<void(const void* object)>& function)
    {
        const Struct object{};
        function(&object);
    }

    std::shared_ptr<config::Table> table_;
};

} // namespace vorn::parsers::toml

#endif
