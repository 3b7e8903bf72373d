// vorn_toml_config: the values of scalars, checked.
//
// A visitor of vorn_parsers gets scalars as texts, as the document has them.  The
// functions of this header turn such a text into its value, or tell that TOML 1.0
// has no such value: an integer beyond 64 bits, February 30, an escape that stands
// for no character.
//
//   #include <vorn/parsers/toml_values.h>
//
//   using namespace vorn::parsers::toml;
//
//   void visitInteger(const char* text) override
//   {
//       const std::optional<std::int64_t> value = integerValue(text);
//       if (!value) { ... }   // out of range
//   }
//
// They do not depend on the locale or the time zone, change nothing, keep nothing,
// and may be called on any number of threads.  Of a text that no scalar has, such
// as one with a blank around it, there is no value, either: each function says what
// it returns then.  Any bytes are safe.
//
// A program without exceptions ends where a function would throw; toml.h says more about these.
//
// This is a part of libvorn_toml_config.
#ifndef VORN_PARSERS_TOML_VALUES_H
#define VORN_PARSERS_TOML_VALUES_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#if !defined(VORN_TOML_CONFIG_API)
#if defined(__GNUC__)
#define VORN_TOML_CONFIG_API __attribute__((visibility("default")))
#else
#define VORN_TOML_CONFIG_API
#endif
#endif

namespace vorn::parsers::toml
{

// Returns the value of an integer: decimal with an optional sign, or 0x, 0o, 0b, with
// underscores between digits.
//
// Returns no value for one that needs more than 64 bits, as TOML 1.0 wants it, and for
// any other text.  Throws and allocates nothing.
//
//   integerValue("-1_000")                // -1000
//   integerValue("0xDEAD_beef")           // 3735928559
//   integerValue("0b1101_0101")           // 213
//   integerValue("0x7FFFFFFFFFFFFFFF")    // 9223372036854775807
//   integerValue("9223372036854775808")   // no value: out of range
//   integerValue("012")                   // no value: not an integer of TOML
VORN_TOML_CONFIG_API std::optional<std::int64_t> integerValue(std::string_view text) noexcept;

// Returns the value of a float: the double that is nearest to it.  What is closer to zero
// than any other double is zero, with its sign.  Infinities and not-a-numbers are values,
// with their signs, too.
//
// Returns no value for one that is too large for a double, and for any other text, an
// integer among them.  Allocates a copy of the text if it has underscores and more than some
// characters; throws std::bad_alloc if there is not enough memory for it, and nothing else.
//
//   floatValue("6.626e-34")    // 6.626e-34
//   floatValue("1_000.5")      // 1000.5
//   floatValue("-inf")         // minus infinity
//   floatValue("1e-400")       // 0.0
//   floatValue("1e400")        // no value: out of range
//   floatValue("1")            // no value: an integer
VORN_TOML_CONFIG_API std::optional<double> floatValue(std::string_view text);

// Returns the value of a boolean: whether the text is "true".
//
// Returns false for any other text.  Throws and allocates nothing.
//
//   booleanValue("true")    // true
//   booleanValue("false")   // false
//   booleanValue("True")    // false
VORN_TOML_CONFIG_API bool booleanValue(std::string_view text) noexcept;

// Returns the content of a string of any of the four kinds, or the name in a quoted key, in
// UTF-8: without delimiters, escapes resolved.
//
// Of a string of several lines, the line break right after the opening delimiter is left out,
// be it a line feed or a carriage return and a line feed; so is a backslash at the end of a
// line, with all blanks and line breaks after it.  Other line breaks stay as they are.  The
// escape \' is an apostrophe.  Bytes that are not UTF-8 stay as they are.
//
// Returns no value if an escape stands for no character: \uD800 to \uDFFF, and those above
// \U0010FFFF.  Returns no value, either, for any other text: without delimiters, with an
// unknown escape, with a delimiter inside or, in a string of one line, a line feed.  Allocates
// once, and not at all for a text of some characters; throws std::bad_alloc if there is not enough
// memory, and nothing else.
//
//   stringValue("\"a\\tb\"")                        // a, tab, b
//   stringValue("'C:\\temp'")                       // C:\temp
//   stringValue("\"\\u00e9\"")                      // C3 A9, the letter in UTF-8
//   stringValue("\"\"\"\none\\\n   two\"\"\"")      // onetwo
//   stringValue("\"\\uD800\"")                      // no value: half of a character
//   stringValue("plain")                            // no value: no delimiters
VORN_TOML_CONFIG_API std::optional<std::string> stringValue(std::string_view text);

// A day of the Gregorian calendar.
struct Date
{
    int year = 0;  // 0 to 9999
    int month = 1; // 1 to 12
    int day = 1;   // 1 to 31
};

// A time of the day.
struct Time
{
    int hour = 0;       // 0 to 23
    int minute = 0;     // 0 to 59
    int second = 0;     // 0 to 60: 60 is a leap second
    int nanosecond = 0; // 0 to 999999999
};

// A date, a time, or both, with an offset from UTC or without: whatever TOML has of these.
struct DateTime
{
    std::optional<Date> date;  // none: a time alone
    std::optional<Time> time;  // none: a date alone
    std::optional<int> offset; // minutes east of UTC, -1439 to 1439, 0 for Z; none: local

    // Returns the point in time, rounded down to what system_clock can tell.  A leap second is
    // the first second of the next minute.
    //
    // Returns no value unless there are a date, a time and an offset, all within the limits
    // above, and where system_clock cannot hold it: with nanoseconds in 64 bits it goes from
    // 1677 to 2262.  Throws and allocates nothing.
    //
    //   dateTimeValue("1970-01-02T00:00:00Z")->toTimePoint()        // a day after the epoch
    //   dateTimeValue("1970-01-01T00:00:00+01:00")->toTimePoint()   // an hour before it
    //   dateTimeValue("1970-01-02")->toTimePoint()                  // no value
    VORN_TOML_CONFIG_API std::optional<std::chrono::system_clock::time_point>
    toTimePoint() const noexcept;
};

// Whether two dates are the same.
constexpr bool operator==(const Date& one, const Date& other) noexcept
{
    return one.year == other.year && one.month == other.month && one.day == other.day;
}

// Whether they are not.
constexpr bool operator!=(const Date& one, const Date& other) noexcept
{
    return !(one == other);
}

// Whether two times are the same.
constexpr bool operator==(const Time& one, const Time& other) noexcept
{
    return one.hour == other.hour && one.minute == other.minute && one.second == other.second &&
           one.nanosecond == other.nanosecond;
}

// Whether they are not.
constexpr bool operator!=(const Time& one, const Time& other) noexcept
{
    return !(one == other);
}

// Whether their parts are the same.  Two that are the same point in time, with other offsets, are
// not equal.
constexpr bool operator==(const DateTime& one, const DateTime& other) noexcept
{
    return one.date == other.date && one.time == other.time && one.offset == other.offset;
}

// Whether any of their parts are not.
constexpr bool operator!=(const DateTime& one, const DateTime& other) noexcept
{
    return !(one == other);
}

// Returns the value of a date-time with an offset or without, of a date, or of a time.
//
// The digits of a fraction beyond nine are dropped.  Between date and time is a 'T', a 't' or a
// blank; an offset is a 'Z', or hours and minutes with a sign.
//
// Returns no value for a date or a time that does not exist, for an offset beyond 23:59, and for
// any other text.  Throws and allocates nothing.
//
//   dateTimeValue("1979-05-27")                  // date 1979, 5, 27
//   dateTimeValue("07:32:00.5")                  // time 7, 32, 0, 500000000
//   dateTimeValue("1979-05-27 07:32:00-07:00")   // both, and the offset -420
//   dateTimeValue("1979-02-30")                  // no value: there is no such day
//   dateTimeValue("24:00:00")                    // no value: there is no such hour
VORN_TOML_CONFIG_API std::optional<DateTime> dateTimeValue(std::string_view text) noexcept;

} // namespace vorn::parsers::toml

#endif
