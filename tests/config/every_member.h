// A configuration with members of every kind.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace test
{

namespace toml = vorn::parsers::toml;

enum class Color : std::uint8_t
{
    red = 1,
    green = 200,
};

struct Point
{
    double x = 0;
    double y = 0;
};

struct Window
{
    int begin = 0;
    int end = 10;
    std::optional<Point> origin;
};

struct EveryMember
{
    bool isOn = false;
    std::int8_t tiny = 0;
    std::uint8_t byte = 0;
    short small = 0;
    unsigned short port = 0;
    int number = 0;
    unsigned count = 0;
    long long wide = 0;
    std::uint64_t size = 0;
    float ratio = 0;
    double exact = 0;
    std::string text;
    toml::DateTime time;
    std::chrono::seconds pause{1};
    std::chrono::milliseconds interval{1};
    std::chrono::duration<double> exactPause{1};
    Color color = Color::red;
    std::optional<int> limit;
    std::optional<std::vector<std::string>> names;
    std::vector<bool> flags;
    std::vector<std::vector<int>> rows;
    std::array<int, 3> triple{};
    std::map<std::string, bool> features;
    std::map<std::string, std::map<std::string, Color>> palette;
    std::vector<Color> colors;
    std::optional<Point> center;
    std::vector<Window> windows;
    std::array<Point, 2> corners;
    std::map<std::string, Window> named;
};

inline const toml::Schema<Point>& pointSchema()
{
    static const toml::Schema<Point> schema =
        toml::Schema<Point>().required("x", &Point::x).optional("y", &Point::y);
    return schema;
}

inline const toml::Schema<Window>& windowSchema()
{
    static const toml::Schema<Window> schema =
        toml::Schema<Window>()
            .optional("begin", &Window::begin)
            .optional("end", &Window::end)
            .table("origin", &Window::origin, pointSchema())
            .optional("\"5 GHz\".end", &Window::end)
            .check([](const Window& window)
                   { return window.end < window.begin ? "end is before begin" : ""; },
                   {"end", "begin"});
    return schema;
}

inline const toml::Schema<EveryMember>& everySchema()
{
    using toml::oneOf;
    using toml::unit;
    using E = EveryMember;
    static const toml::Schema<E> schema =
        toml::Schema<E>()
            .optional("on", &E::isOn, "Whether it is on.")
            .optional("tiny", &E::tiny)
            .optional("byte", &E::byte)
            .optional("small", &E::small)
            .optional("port", &E::port,
                      [](unsigned short port) { return port == 22 ? "is taken" : ""; })
            .optional("number", &E::number)
            .optional("count", &E::count)
            .optional("wide", &E::wide)
            .optional("size", &E::size)
            .optional("ratio", &E::ratio)
            .optional("exact", &E::exact)
            .optional("text", &E::text)
            .optional("time", &E::time)
            .optional("pause", &E::pause, unit<std::chrono::minutes>(), toml::range(1, 60))
            .optional("interval", &E::interval, unit<std::chrono::seconds>())
            .optional("exact-pause", &E::exactPause, unit<std::chrono::milliseconds>())
            .optional("color", &E::color, oneOf({{"red", Color::red}, {"green", Color::green}}))
            .optional("limit", &E::limit, toml::range(1, 9),
                      [](int limit) { return limit == 4 ? "is not lucky" : ""; })
            .optional("names", &E::names)
            .optional("flags", &E::flags)
            .optional("rows", &E::rows, toml::range(0, 99))
            .optional("triple", &E::triple)
            .optional("features", &E::features)
            .optional("palette", &E::palette, oneOf({{"red", Color::red}, {"green", Color::green}}))
            .optional("colors", &E::colors, oneOf({{"red", Color::red}, {"green", Color::green}}))
            .table("point", &E::center, pointSchema())
            .tables("window", &E::windows, windowSchema(),
                    [](const std::vector<Window>& windows)
                    { return windows.size() > 3 ? "has more than three" : ""; })
            .tables("corner", &E::corners, pointSchema())
            .tablesByName("named", &E::named, windowSchema());
    return schema;
}

} // namespace test
