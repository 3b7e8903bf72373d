#include "conversion_texts.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string_view>

namespace test
{
namespace
{

std::uint64_t bits(Random& random)
{
    // (Two halves: below() takes a number that fits std::size_t.)
    const std::uint64_t half = std::uint64_t{1} << 32;
    return static_cast<std::uint64_t>(random.below(0xFFFFFFFF)) * half + random.below(0xFFFFFFFF);
}

std::string characters(Random& random, std::string_view alphabet, std::size_t min, std::size_t max)
{
    std::string text;
    for (std::size_t count = random.between(min, max); count > 0; --count)
    {
        text += random.oneOf(alphabet);
    }
    return text;
}

// Now and then an underscore between two characters, as the grammar has it, or anywhere.
std::string withUnderscores(Random& random, std::string text)
{
    if (text.size() > 1 && random.oneIn(3))
    {
        const bool isAnywhere = random.oneIn(8);
        for (std::size_t at = text.size() - 1; at > 0; --at)
        {
            if (random.oneIn(4))
            {
                text.insert(at, 1, '_');
            }
        }
        if (isAnywhere)
        {
            text.insert(random.below(text.size() + 1), 1, '_');
        }
    }
    return text;
}

// A byte more, less, or another one, in one of four texts.
std::string damaged(Random& random, std::string text)
{
    static constexpr std::string_view likely = "0123456789_+-.:eEZTtxob aA,\t\n";
    while (random.oneIn(4))
    {
        const char byte =
            random.oneIn(4) ? static_cast<char>(random.below(256)) : random.oneOf(likely);
        const std::size_t at = random.below(text.size() + 1);
        switch (random.below(3))
        {
        case 0:
            text.insert(at, 1, byte);
            break;
        case 1:
            text.erase(at, 1);
            break;
        default:
            text.replace(at, 1, 1, byte);
        }
    }
    return text;
}

std::string sign(Random& random)
{
    static constexpr std::string_view signs[] = {"", "", "+", "-"};
    return std::string(random.oneOf(signs));
}

// Near the largest numbers of 64 bits with a sign and without, or of 32 bits.
std::string numberNearALimit(Random& random, const char* format)
{
    static constexpr std::uint64_t limits[] = {0, std::numeric_limits<std::uint32_t>::max(),
                                               std::numeric_limits<std::int64_t>::max(),
                                               std::numeric_limits<std::uint64_t>::max()};
    const std::uint64_t number = limits[random.below(4)] + random.below(8) - 4;
    char text[32];
    std::snprintf(text, sizeof(text), format, static_cast<unsigned long long>(number));
    return text;
}

std::string decimalInteger(Random& random)
{
    switch (random.below(4))
    {
    case 0:
        return numberNearALimit(random, "%llu");
    case 1:
        return characters(random, "0123456789", 17, 21);
    case 2: // without a zero at the start
        return characters(random, "123456789", 1, 1) + characters(random, "0123456789", 0, 18);
    default:
        return characters(random, "0123456789", 0, 6);
    }
}

// Digits of a printed number, every so often with those after the mark of an exponent.
std::string printedFloat(Random& random)
{
    const std::uint64_t pattern = bits(random);
    double value = 0;
    std::memcpy(&value, &pattern, sizeof(value));
    char text[64];
    std::snprintf(text, sizeof(text), "%.*e", static_cast<int>(random.between(0, 20)), value);
    return text; // it may be "inf" or "nan"
}

std::string digits(Random& random, std::size_t max)
{
    return withUnderscores(random, characters(random, "0123456789", 1, max));
}

std::string writtenFloat(Random& random)
{
    std::string text = sign(random);
    text += random.oneIn(3) ? "0" : digits(random, random.oneIn(8) ? 40 : 12);
    if (!random.oneIn(4))
    {
        text += '.' + (random.oneIn(8) ? std::string(random.below(8), '0') : "") +
                digits(random, random.oneIn(8) ? 30 : 17);
    }
    if (random.oneIn(3))
    {
        text += random.oneOf("eE") + sign(random) + digits(random, 3);
    }
    return text;
}

std::string limitOfFloats(Random& random)
{
    static constexpr std::string_view numbers[] = {
        "1.7976931348623157e308", "1.7976931348623158e308", "1.7976931348623159e+308", "1e400",
        "2.2250738585072014e-308", "2.2250738585072011e-308", "2.2250738585072015e-308",
        "4.9406564584124654e-324", "2.4703282292062327e-324", "2.4703282292062328e-324", "1e-400",
        "0e400", "0.0e-999999999999999999999", "1e99999999999999999999", "1e-99999999999999999999",
        "0.000000000000000000000000000000000000e1",
        // Between two neighbours.
        "9007199254740993", "9007199254740992.9999999999999999", "9007199254740993.00000000001",
        "0.500000000000000166533453693773481063544750213623046875", "inf", "nan", "infinity",
        "nan(1)", "0x1p3", "0x.8", ".5", "5.", "1e", "1e+", "1.e5", "-", ""};
    return sign(random) + std::string(random.oneOf(numbers));
}

std::string twoDigits(std::size_t number)
{
    const std::string digits = std::to_string(number % 100);
    return digits.size() == 1 ? '0' + digits : digits;
}

// Times when clocks are changed are likelier than by chance.
std::string date(Random& random)
{
    static constexpr std::string_view years[] = {"19", "19", "20", "20", "20", "18", "00", "99"};
    const bool isChange = random.oneIn(4);
    static constexpr std::size_t months[] = {3, 4, 9, 10, 11};
    const std::size_t month = isChange ? months[random.below(5)] : random.between(1, 12);
    const std::size_t day = random.oneIn(8) ? random.between(28, 31) : random.between(1, 31);
    return std::string(random.oneOf(years)) + twoDigits(random.below(100)) + '-' +
           twoDigits(random.oneIn(40) ? random.below(100) : month) + '-' +
           twoDigits(random.oneIn(40) ? random.below(100) : day);
}

std::string time(Random& random)
{
    const std::size_t hour = random.oneIn(3) ? random.below(5) : random.below(24);
    return twoDigits(random.oneIn(40) ? random.below(100) : hour) + ':' +
           twoDigits(random.oneIn(40) ? random.below(100) : random.below(60)) + ':' +
           twoDigits(random.oneIn(40) ? random.below(100) : random.below(62));
}

std::string offset(Random& random)
{
    return random.oneOf("+-") + twoDigits(random.below(25)) + ':' + twoDigits(random.below(60));
}

} // namespace

std::string booleanText(Random& random)
{
    static constexpr std::string_view pieces[] = {"true", "true", "false", "false", "t",  "tru",
                                                  "True", "rue",  " ",     "\t",    "\n", "_",
                                                  "ja",   "1",    "0",     "wahr"};
    std::string text(pieces[random.below(4)]);
    while (random.oneIn(4))
    {
        text.insert(random.oneIn(2) ? 0 : text.size(), random.oneOf(pieces));
    }
    return damaged(random, text);
}

std::string integerText(Random& random)
{
    std::string text;
    switch (random.below(8))
    {
    case 0:
        text = "0x" + (random.oneIn(2) ? numberNearALimit(random, "%llx")
                                       : characters(random, "0123456789abcdefABCDEF", 0, 18));
        break;
    case 1:
        text = "0o" + (random.oneIn(2) ? numberNearALimit(random, "%llo")
                                       : characters(random, "01234567", 0, 23));
        break;
    case 2:
        text = "0b" + characters(random, "01", 0, random.oneIn(2) ? 34 : 70);
        break;
    default:
        return damaged(random, sign(random) + withUnderscores(random, decimalInteger(random)));
    }
    return damaged(random, text.substr(0, 2) + withUnderscores(random, text.substr(2)));
}

std::string floatText(Random& random)
{
    const std::size_t kind = random.below(8);
    return damaged(random, kind == 0   ? limitOfFloats(random)
                           : kind == 1 ? integerText(random)
                           : kind < 5  ? printedFloat(random)
                                       : writtenFloat(random));
}

std::string dateTimeText(Random& random)
{
    static constexpr std::string_view separators[] = {"T", "T", "T", "T", "T", "T", " ",
                                                      " ", " ", " ", " ", "t", "%", ""};
    std::string text = date(random) + std::string(random.oneOf(separators));
    text += random.oneIn(64) ? "" : time(random);
    if (random.oneIn(3))
    {
        text += '.' + characters(random, "0123456789", 0, 9);
    }
    switch (random.below(4))
    {
    case 0:
        text += random.oneOf("ZZZZZZZAJz");
        break;
    case 1:
        text += offset(random);
        break;
    default:
        break;
    }
    // Much of a document's damage changes a form, so that less of it will do.
    return random.oneIn(3) ? damaged(random, text) : text;
}

} // namespace test
