// Measures what it costs to convert a scalar's text: by the exported functions, and by the stated
// way that they leave other texts to: vorn-conversions
#include <benchmark/benchmark.h>
#include <vorn/parsers/toml.h>

#include <cstdlib>
#include <string>

#include "src/stated_conversions.h"

namespace
{

using namespace vorn::parsers;

// In a time zone: none is one, too, for which the C library looks at a file in each call.
void enterZone(const char* zone)
{
    zone != nullptr ? setenv("TZ", zone, 1) : unsetenv("TZ");
}

template <typename Convert>
void measure(const std::string& name, const std::string& text, Convert convert,
             const char* zone = nullptr)
{
    const auto run = [text, convert, zone](benchmark::State& state)
    {
        enterZone(zone);
        for (auto _ : state)
        {
            const char* written = text.c_str();
            benchmark::DoNotOptimize(written);
            benchmark::DoNotOptimize(convert(written));
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

// What is exported, and the stated way.
template <typename Exported, typename Stated>
void compare(const std::string& kind, const std::string& text, Exported exported, Stated stated,
             const char* zone = nullptr)
{
    measure(kind + " `" + text + "`/exported", text, exported, zone);
    measure(kind + " `" + text + "`/stated", text, stated, zone);
}

void measureBoolean(const std::string& text)
{
    compare(
        "boolean", text, [](const char* written) { return toml::parseBoolean(written); },
        [](const char* written) { return toml::stated::parseBoolean(written); });
}

void measureInteger(const std::string& text)
{
    compare(
        "integer", text, [](const char* written) { return toml::parseInteger(written); },
        [](const char* written) { return toml::stated::parseInteger(written); });
}

void measureFloat(const std::string& text)
{
    compare(
        "float", text, [](const char* written) { return toml::parseFloat(written); },
        [](const char* written) { return toml::stated::parseFloat(written); });
}

void measureDateTime(const char* zone, const std::string& text)
{
    compare(
        std::string("date-time, ") + (zone != nullptr ? zone : "no TZ") + ',', text,
        [](const char* written) { return toml::parseDateTime(written).tv_sec; },
        [](const char* written) { return toml::stated::parseDateTime(written).tv_sec; }, zone);
}

} // namespace

int main(int count, char** words)
{
    benchmark::Initialize(&count, words);
    benchmark::AddCustomContext("compiler", VORN_COMPILER);
    measureBoolean("true");
    measureBoolean("false");
    for (const char* const text : {"8080", "-1_000_000", "0xDEAD_beef", "0o755", "0b1101_0101"})
    {
        measureInteger(text);
    }
    for (const char* const text : {"0.5", "3.141592653589793", "-1_000.5", "6.62607015e-34"})
    {
        measureFloat(text);
    }
    for (const char* const zone : {"UTC0", "Europe/Berlin", "America/New_York", "Asia/Kolkata",
                                   static_cast<const char*>(nullptr)})
    {
        measureDateTime(zone, "2024-07-15T12:00:00Z");
        measureDateTime(zone, "2024-07-15T12:00:00.25+02:00");
    }
    benchmark::RunSpecifiedBenchmarks();
}
