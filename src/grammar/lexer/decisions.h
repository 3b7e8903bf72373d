// What errors report of a choice that failed: its number, its state, its description.
//
// The numbers are those that the antlr3 tool gives when it makes a lexer from Toml.g.  They
// change with the grammar: a test compares them with the tool's lexer.
#pragma once

#include <array>
#include <cstdint>

namespace vorn::parsers::toml
{

// The choices of the grammar that can fail, by the rule that each stands in.
enum class Decision : std::uint32_t
{
    boolean = 5,   // between the words
    floating = 20, // between an exponent and a fraction
    decInt = 25,   // between zero and other digits
    offset = 30,   // between Z and a sign
    mlEscape = 34, // between an escape and a line break, with its backslash
    escape = 35,   // among the letters after a backslash
    tokens = 36,   // among all tokens
};

// A choice that looks at more than one character names the state in which it failed: of the
// tool's automaton, at the character that has no transition.
using DecisionState = std::uint32_t;

namespace states
{

inline constexpr DecisionState start = 0;

// Of Decision::mlEscape.
inline constexpr DecisionState afterBackslash = 1;

// Of Decision::tokens.  After a quote, the tool's lexer looks at the next character with code
// instead of a table.  It reports the number of that code, not that of the state.
inline constexpr DecisionState afterQuotationMark = 0;
inline constexpr DecisionState afterApostrophe = 1;
inline constexpr DecisionState afterPlus = 20;
inline constexpr DecisionState afterUnderscoreOfPlus = 62; // in the digits after a plus sign
inline constexpr DecisionState afterPointOfTime = 105;     // in a date-time
// Before each character of 00:00:00 in a date-time.
inline constexpr std::array<std::uint8_t, 8> inTime = {93, 95, 97, 98, 99, 100, 101, 102};

} // namespace states

// Of Decision::tokens; the others have none.
inline constexpr char tokensDescription[] =
    "1:1: Tokens : ( T__69 | T__70 | T__71 | T__72 | T__73 | T__74 | T__75 | WS | NL | COMMENT | "
    "BOOLEAN | BASIC_STRING | ML_BASIC_STRING | LITERAL_STRING | ML_LITERAL_STRING | FLOAT | INF "
    "| NAN | DEC_INT | HEX_INT | OCT_INT | BIN_INT | OFFSET_DATE_TIME | LOCAL_DATE_TIME | "
    "LOCAL_DATE | LOCAL_TIME | BARE_KEY );";

} // namespace vorn::parsers::toml
