// A schema with members of every kind, none of whose keys is required but where it says so.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace every_kind
{

enum class Colour : std::uint8_t
{
    red = 1,
    green = 200,
};

struct Rule
{
    std::string target; // required
    std::vector<int> ports;

    auto tie() const { return std::tie(target, ports); }
};

struct Proxy
{
    std::string host = "proxy";
    std::optional<std::uint16_t> port;
    std::vector<Rule> rules;

    auto tie() const { return std::tie(host, port, rules); }
};

struct Interface
{
    std::string address; // required
    std::map<std::string, Proxy> proxies;

    auto tie() const { return std::tie(address, proxies); }
};

struct Config
{
    bool isOn = true;
    std::int8_t tiny = -128;
    std::uint8_t byte = 255;
    std::int16_t small = -32768;
    std::uint16_t port = 65535;
    std::int32_t middle = std::numeric_limits<std::int32_t>::min();
    std::uint32_t natural = std::numeric_limits<std::uint32_t>::max();
    std::int64_t large = std::numeric_limits<std::int64_t>::min();
    std::uint64_t size = 9223372036854775807U;
    double ratio = 0.1;
    double whole = 123456789012345680000.0;
    double negativeZero = -0.0;
    double infinity = -std::numeric_limits<double>::infinity();
    float single = 0.1F;
    float largest = std::numeric_limits<float>::max();
    std::string text = "a \"b\" \\ \t\n\x7f \xc3\xa9 \xef\xbf\xbf \xf0\x9f\x98\x80";
    Colour colour = Colour::green;
    vorn::parsers::toml::DateTime moment;
    vorn::parsers::toml::DateTime day;
    vorn::parsers::toml::DateTime clock;
    std::chrono::milliseconds delay{1500};
    std::chrono::milliseconds longDelay{60000};
    std::chrono::duration<double> exactDelay{0.25};
    std::chrono::seconds interval{7200};
    std::optional<int> unset;
    std::optional<std::string> set = "value";
    std::vector<bool> flags{true, false};
    std::vector<Colour> colours{Colour::red, Colour::green};
    std::vector<std::vector<int>> matrix{{1, 2}, {3}};
    std::array<float, 3> point{1, 2.5F, -3};
    std::map<std::string, int> counts{{"a b", 1}, {"true", 2}, {"", 3}, {"\xf0\x9f\x98\x80", 4}};
    std::vector<std::map<std::string, std::vector<std::string>>> nested{{{"a", {"b", "c"}}}};
    std::vector<int> none;
    Proxy proxy;
    std::optional<Proxy> unsetProxy;
    std::optional<Proxy> setProxy = Proxy{"other", std::uint16_t{8080}, {{"x", {1}}, {"y", {}}}};
    std::vector<Rule> rules;
    std::array<Rule, 2> pair{{{"first", {1, 2}}, {"second", {}}}};
    std::map<std::string, Interface> interfaces{{"eth 0", {"10.0.0.1", {{"p", {}}}}},
                                                {"lo", {"127.0.0.1", {}}}};
    std::map<std::string, Interface> noInterfaces;

    Config()
    {
        moment.date = vorn::parsers::toml::Date{1979, 5, 27};
        moment.time = vorn::parsers::toml::Time{7, 32, 0, 120000000};
        moment.offset = -7 * 60 - 30;
        day.date = vorn::parsers::toml::Date{5, 1, 2};
        clock.time = vorn::parsers::toml::Time{23, 59, 59, 7};
    }
    auto values() const
    {
        return std::tie(isOn, tiny, byte, small, port, middle, natural, large, size, ratio, whole,
                        negativeZero, infinity, single, largest, text, colour, moment, day, clock,
                        delay, longDelay, exactDelay, interval);
    }
    auto containers() const
    {
        return std::tie(unset, set, flags, colours, matrix, point, counts, nested, none, proxy,
                        unsetProxy, setProxy, rules, pair, interfaces, noInterfaces);
    }
};

template <typename Struct>
auto operator==(const Struct& one, const Struct& other) -> decltype(one.tie() == other.tie())
{
    return one.tie() == other.tie();
}

inline bool operator==(const Config& one, const Config& other)
{
    return one.values() == other.values() && one.containers() == other.containers() &&
           std::signbit(one.negativeZero) == std::signbit(other.negativeZero);
}

inline const vorn::parsers::toml::Schema<Rule>& ruleSchema()
{
    using namespace vorn::parsers::toml;
    static const Schema<Rule> schema = Schema<Rule>()
                                           .required("target", &Rule::target, "Where to.")
                                           .optional("match.ports", &Rule::ports, range(1, 65535));
    return schema;
}

inline const vorn::parsers::toml::Schema<Proxy>& proxySchema()
{
    using namespace vorn::parsers::toml;
    static const Schema<Proxy> schema = Schema<Proxy>()
                                            .optional("host", &Proxy::host)
                                            .optional("port", &Proxy::port)
                                            .tables("rule", &Proxy::rules, ruleSchema())
                                            .unknownKeys(Unknown::warning);
    return schema;
}

inline const vorn::parsers::toml::Schema<Interface>& interfaceSchema()
{
    using namespace vorn::parsers::toml;
    static const Schema<Interface> schema =
        Schema<Interface>()
            .required("address", &Interface::address)
            .tablesByName("proxies", &Interface::proxies, proxySchema());
    return schema;
}

inline const vorn::parsers::toml::Schema<Config>& schema()
{
    using namespace vorn::parsers::toml;
    using namespace std::chrono;
    const auto colours = oneOf({{"red", Colour::red}, {"gr\"een", Colour::green}});
    static const Schema<Config> schema =
        Schema<Config>()
            .optional("on", &Config::isOn, "Whether it is on | off.")
            .tablesByName("\"inter faces\"", &Config::interfaces, interfaceSchema())
            .optional("integers.\"true\".tiny", &Config::tiny)
            .optional("integers.byte", &Config::byte, range(-5, 300))
            .optional("integers.small", &Config::small)
            .optional("integers.port", &Config::port, range(1, 100000))
            .optional("integers.middle", &Config::middle)
            .optional("integers.natural", &Config::natural)
            .optional("integers.large", &Config::large)
            .optional("integers.size", &Config::size)
            .optional("\"123\"", &Config::ratio, range(0.1, 60.0))
            .optional("whole", &Config::whole)
            .optional("-", &Config::negativeZero)
            .optional("inf", &Config::infinity)
            .optional("single", &Config::single)
            .optional("largest", &Config::largest)
            .optional("text", &Config::text, "With \xf0\x9f\x98\x80 \"quotes\" \\ and\n\nlines.\n")
            .optional("colour", &Config::colour, colours)
            .optional("\"1979-05-27\"", &Config::moment)
            .optional("day", &Config::day)
            .optional("clock", &Config::clock)
            .optional("delay", &Config::delay, unit<seconds>(), range(0, 60))
            .optional("long-delay", &Config::longDelay, unit<minutes>())
            .optional("exact_delay", &Config::exactDelay, unit<milliseconds>())
            .optional("interval", &Config::interval, unit<duration<int, std::ratio<600>>>())
            .optional("unset", &Config::unset, range(5, 9))
            .optional("set", &Config::set)
            .optional("lists.flags", &Config::flags)
            .optional("lists.colours", &Config::colours, colours)
            .optional("lists.matrix", &Config::matrix)
            .optional("lists.point", &Config::point, range(-10, 10))
            .optional("lists.none", &Config::none)
            .optional("maps.counts", &Config::counts)
            .optional("maps.nested", &Config::nested)
            .table("tables.proxy", &Config::proxy, proxySchema(), "The proxy.")
            .table("tables.unset", &Config::unsetProxy, proxySchema())
            .table("tables.set", &Config::setProxy, proxySchema())
            .tables("rule", &Config::rules, ruleSchema())
            .tables("pair.\"\xf0\x9f\x98\x80\"", &Config::pair, ruleSchema())
            .tablesByName("none", &Config::noInterfaces, interfaceSchema());
    return schema;
}

} // namespace every_kind
