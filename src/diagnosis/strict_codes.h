// What TOML 1.0 forbids and the library accepts.
#pragma once

namespace vorn::parsers::toml::diagnosis
{

// A rule of TOML 1.0 with the words for what breaks it.  In the message and in the hint '%'
// stands for what is known of the place.
struct StrictRule
{
    const char* code;
    const char* message;
    const char* hint;
};

// Names
inline constexpr StrictRule duplicateKey = {
    "duplicate-key", "the key% is defined twice",
    "A table has each key only once. Remove or rename one of the two."};
inline constexpr StrictRule duplicateTable = {"duplicate-table", "the table% is defined twice",
                                              "Put all pairs of a table below one header. Elements "
                                              "of an array of tables are written [[key]]."};
inline constexpr StrictRule tableOverValue = {
    "table-over-value", "the key% has a value already, so it cannot be a table",
    "Rename the table or the value."};
inline constexpr StrictRule valueOverTable = {
    "value-over-table", "the key% is a table already, so it cannot have a value",
    "Rename the value or the table."};
inline constexpr StrictRule tableOverArray = {
    "table-over-array-of-tables", "the key% is an array of tables already, so it cannot be a table",
    "Write [[ and ]] around the key to add an element, or give the table another name."};
inline constexpr StrictRule arrayOverTable = {
    "array-of-tables-over-table", "the key% is a table already, so it cannot be an array of tables",
    "Write [[ and ]] around the key wherever it has a header, or give one of the two another "
    "name."};
inline constexpr StrictRule inlineTableExtended = {
    "inline-table-extended", "the inline table% cannot be extended",
    "An inline table has all its pairs between its braces. Add them there, or write a header "
    "instead of it."};
inline constexpr StrictRule arrayExtended = {
    "array-extended", "the array% cannot be extended",
    "An array has all its elements between its brackets. Add them there, or write all of them "
    "with [[ and ]]."};
inline constexpr StrictRule dottedKeyOverTable = {
    "dotted-key-over-table", "the table% has a header, so a dotted key cannot add to it",
    "Put the pair below the header of the table."};
inline constexpr StrictRule spacedBrackets = {
    "spaced-brackets", "there is a blank between the brackets of the header",
    "The header of an array of tables is written [[key]]."};

// Dates and times
inline constexpr StrictRule noSuchMonth = {"date-does-not-exist", "the month % does not exist",
                                           "Months are 01 to 12."};
inline constexpr StrictRule noSuchDay = {"date-does-not-exist", "the day % does not exist",
                                         "This month has the days 01 to %."};
inline constexpr StrictRule noSuchHour = {"time-does-not-exist", "the hour % does not exist",
                                          "Hours are 00 to 23."};
inline constexpr StrictRule noSuchMinute = {"time-does-not-exist", "the minute % does not exist",
                                            "Minutes are 00 to 59."};
inline constexpr StrictRule noSuchSecond = {"time-does-not-exist", "the second % does not exist",
                                            "Seconds are 00 to 59, and 60 for a leap second."};
inline constexpr StrictRule offsetOutOfRange = {
    "offset-out-of-range", "the offset % is out of range", "Offsets are -23:59 to +23:59."};

inline constexpr StrictRule integerOutOfRange = {
    "integer-out-of-range", "the integer needs more than 64 bits",
    "Integers are -9223372036854775808 to 9223372036854775807. A float or a string can hold "
    "more."};

// Strings
inline constexpr StrictRule escapedSurrogate = {
    "escape-of-no-character", "the escape % stands for no character",
    "D800 to DFFF are halves of pairs in UTF-16. Write one \\U with the number of the whole "
    "character."};
inline constexpr StrictRule escapeTooHigh = {"escape-of-no-character",
                                             "the escape % stands for no character",
                                             "The last character is \\U0010FFFF."};
inline constexpr StrictRule escapedApostrophe = {
    "unknown-escape", "unknown escape \\'",
    "An apostrophe in a string with double quotes needs no backslash."};

// Bytes
inline constexpr StrictRule nul = {
    "nul", "% not allowed",
    "In a string with double quotes, write \\u0000 instead. Perhaps this is not a text file."};
inline constexpr StrictRule controlCharacter = {
    "control-character", "% not allowed",
    "In a string with double quotes, write \\u% instead. Of control characters only tabs and line "
    "breaks are allowed."};
inline constexpr StrictRule notUtf8 = {
    "not-utf8", "% not valid UTF-8",
    "Such bytes may be misread, together with those after them. Save the file as UTF-8."};
inline constexpr StrictRule loneCarriageReturn = {
    "lone-carriage-return", "a carriage return without a line feed after it",
    "Lines end with a line feed (LF), or with a carriage return and a line feed (CR LF)."};

} // namespace vorn::parsers::toml::diagnosis
