// values_differential: prints the values of texts, for values_differential_test.py.
//
// Each line of the input is a text, in hexadecimal digits.  The output has one line for it, with
// what each function returns: "-" for no value.
#include <vorn/parsers/toml_values.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

using namespace vorn::parsers::toml;

namespace
{

std::string bytes(const std::string& hexadecimal)
{
    std::string text;
    for (std::size_t at = 0; at + 1 < hexadecimal.size(); at += 2)
    {
        text += static_cast<char>(std::stoi(hexadecimal.substr(at, 2), nullptr, 16));
    }
    return text;
}

void printInteger(const std::optional<std::int64_t>& value)
{
    value ? std::printf("%lld", static_cast<long long>(*value)) : std::printf("-");
}

void printFloat(const std::optional<double>& value)
{
    std::uint64_t bits = 0;
    static_assert(sizeof(bits) == sizeof(double));
    const double number = value.value_or(0);
    std::memcpy(&bits, &number, sizeof(bits));
    value ? std::printf(" %016llx", static_cast<unsigned long long>(bits)) : std::printf(" -");
}

void printString(const std::optional<std::string>& value)
{
    std::printf(value ? " s" : " -");
    for (const char c : value.value_or(""))
    {
        std::printf("%02x", static_cast<unsigned char>(c));
    }
}

void printDateTime(const std::optional<DateTime>& value)
{
    std::printf(value ? " d" : " -");
    if (value && value->date)
    {
        std::printf("%d,%d,%d", value->date->year, value->date->month, value->date->day);
    }
    if (value && value->time)
    {
        std::printf("T%d,%d,%d,%d", value->time->hour, value->time->minute, value->time->second,
                    value->time->nanosecond);
    }
    if (value && value->offset)
    {
        std::printf("Z%d", *value->offset);
    }
}

} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);)
    {
        const std::string text = bytes(line);
        printInteger(integerValue(text));
        printFloat(floatValue(text));
        std::printf(booleanValue(text) ? " true" : " false");
        printString(stringValue(text));
        printDateTime(dateTimeValue(text));
        std::printf("\n");
    }
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
