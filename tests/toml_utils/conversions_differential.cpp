// Compares, for texts made at random, what the conversions return by the exported functions, by
// the short way and by the stated way: conversions_differential FUNCTION COUNT SEED, where
// FUNCTION is boolean, integer, float or date-time.  Ends with 1 at the first difference.
#include <vorn/parsers/toml.h>

#include <cerrno>
#include <chrono>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "conversion_surroundings.h"
#include "conversion_texts.h"
#include "differential/escaped.h"
#include "plain_date_time.h"
#include "plain_number.h"
#include "stated_conversions.h"
#include "support/log_recorder.h"

using namespace vorn::parsers;
using test::Random;
using test::Surroundings;

namespace
{

// All that can be seen of a call.
struct Outcome
{
    std::uint64_t value = 0; // its bits
    std::string thrown;
    int error = 0;
    std::vector<test::LogLine> lines;
};

bool isEqual(const test::LogLine& one, const test::LogLine& other)
{
    return one.module == other.module && one.sourceFile == other.sourceFile &&
           one.function == other.function && one.line == other.line && one.level == other.level &&
           one.format == other.format && one.message == other.message;
}

bool isEqual(const Outcome& one, const Outcome& other)
{
    bool equal = one.value == other.value && one.thrown == other.thrown &&
                 one.error == other.error && one.lines.size() == other.lines.size();
    for (std::size_t at = 0; equal && at < one.lines.size(); ++at)
    {
        equal = isEqual(one.lines[at], other.lines[at]);
    }
    return equal;
}

std::string described(const Outcome& outcome)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%016" PRIx64 ", errno %d, ", outcome.value, outcome.error);
    const std::string logged = outcome.lines.empty() ? "" : outcome.lines.front().message;
    return text + outcome.thrown + ", " + std::to_string(outcome.lines.size()) + " lines " + logged;
}

std::uint64_t bitsOf(bool value)
{
    return value ? 1 : 0;
}

std::uint64_t bitsOf(long long value)
{
    return static_cast<std::uint64_t>(value);
}

std::uint64_t bitsOf(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

std::uint64_t bitsOf(const timeval& value)
{
    return static_cast<std::uint64_t>(value.tv_sec) + (value.tv_usec != 0 ? 1U << 31 : 0);
}

// What the C library keeps of one mktime() is where the next one starts.
void settleMktime()
{
    std::tm time = {};
    time.tm_year = 100;
    time.tm_mday = 1;
    std::mktime(&time);
}

template <auto convert>
Outcome outcomeOf(const std::string& text)
{
    const test::LogRecorder log;
    Outcome outcome;
    errno = 0;
    try
    {
        outcome.value = bitsOf(convert(std::string(text)));
        outcome.error = errno;
    }
    catch (const std::exception& error)
    {
        outcome.thrown = error.what();
    }
    outcome.lines = log.lines();
    return outcome;
}

template <typename Value, bool (*read)(std::string_view, Value&)>
bool readNumber(const std::string& text, Outcome& outcome)
{
    Value value = {};
    errno = 0;
    const bool isRead = read(text, value);
    outcome.error = errno;
    outcome.value = bitsOf(value);
    return isRead;
}

bool readDateTime(const std::string& text, Outcome& outcome)
{
    std::tm time = {};
    errno = 0;
    const bool isRead = toml::readPlainDateTime(text, time);
    outcome.value = isRead ? bitsOf(timeval{std::mktime(&time), 0}) : 0;
    outcome.error = errno;
    return isRead;
}

struct Conversion
{
    const char* name;
    std::string (*text)(Random&);
    std::vector<Surroundings> (*surroundings)();
    Outcome (*exported)(const std::string&);
    Outcome (*stated)(const std::string&);
    bool (*read)(const std::string&, Outcome&);
};

const Conversion conversions[] = {
    {"boolean", test::booleanText, test::numberSurroundings, outcomeOf<toml::parseBoolean>,
     outcomeOf<toml::stated::parseBoolean>, readNumber<bool, toml::readPlainBoolean>},
    {"integer", test::integerText, test::numberSurroundings, outcomeOf<toml::parseInteger>,
     outcomeOf<toml::stated::parseInteger>, readNumber<long long, toml::readPlainInteger>},
    {"float", test::floatText, test::floatSurroundings, outcomeOf<toml::parseFloat>,
     outcomeOf<toml::stated::parseFloat>, readNumber<double, toml::readPlainFloat>},
    {"date-time", test::dateTimeText, test::dateTimeSurroundings, outcomeOf<toml::parseDateTime>,
     outcomeOf<toml::stated::parseDateTime>, readDateTime},
};

enum class Way
{
    stated,
    plain,
    differs
};

Way compare(const Conversion& conversion, const std::string& text, bool isClassic)
{
    settleMktime();
    const Outcome stated = conversion.stated(text);
    settleMktime();
    const Outcome exported = conversion.exported(text);
    settleMktime();
    Outcome plain;
    const bool isPlain = conversion.read(text, plain);
    const bool isWell =
        isEqual(exported, stated) && (!isPlain || (isClassic && isEqual(plain, stated)));
    if (!isWell)
    {
        std::printf("A text differs: %s\nstated:   %s\nexported: %s\nplain:    %s\n",
                    test::escaped(text).c_str(), described(stated).c_str(),
                    described(exported).c_str(), isPlain ? described(plain).c_str() : "not read");
        return Way::differs;
    }
    return isPlain ? Way::plain : Way::stated;
}

bool compareAll(const Conversion& conversion, std::size_t count, std::uint64_t seed)
{
    constexpr std::size_t inARow = 500; // texts in the same surroundings
    const auto start = std::chrono::steady_clock::now();
    const std::vector<Surroundings> surroundings = conversion.surroundings();
    Random random(seed);
    std::size_t classic = 0;
    std::size_t plain = 0;
    for (std::size_t done = 0; done < count; ++done)
    {
        const Surroundings& current = surroundings[done / inARow % surroundings.size()];
        if (done % inARow == 0)
        {
            current.enter();
        }
        const Way way = compare(conversion, conversion.text(random), current.isClassic);
        if (way == Way::differs)
        {
            std::printf("surroundings: %s\n", current.name.c_str());
            return false;
        }
        classic += current.isClassic ? 1 : 0;
        plain += way == Way::plain ? 1 : 0;
    }
    surroundings.front().enter();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::printf("%s: %zu texts, %zu of them where the short way may be taken, which took %zu; no "
                "difference; %.0f s\n",
                conversion.name, count, classic, plain, elapsed.count());
    // A comparison of a few texts by chance would say little.
    return plain * 4 >= classic;
}

} // namespace

int main(int words, char** word)
{
    for (const Conversion& conversion : conversions)
    {
        if (words == 4 && conversion.name == std::string_view(word[1]))
        {
            const std::size_t count = std::strtoul(word[2], nullptr, 10);
            return compareAll(conversion, count, std::strtoull(word[3], nullptr, 10)) ? 0 : 1;
        }
    }
    std::fputs("Usage: conversions_differential FUNCTION COUNT SEED\n", stderr);
    return 2;
}
