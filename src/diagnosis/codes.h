// The codes of findings: one for each kind of mistake.  They are stable; docs/errors.md
// describes each.
#pragma once

namespace vorn::parsers::toml::diagnosis::codes
{

// Bytes and characters.
inline constexpr char notUtf8[] = "not-utf8";
inline constexpr char utf16[] = "utf-16";
inline constexpr char highCharacter[] = "high-character";
inline constexpr char loneCarriageReturn[] = "lone-carriage-return";
inline constexpr char strayCharacter[] = "stray-character";

// Lines.
inline constexpr char mergeConflict[] = "merge-conflict";
inline constexpr char foreignComment[] = "foreign-comment";
inline constexpr char extraText[] = "extra-text";
inline constexpr char trailingComma[] = "trailing-comma";
inline constexpr char strayBracket[] = "stray-bracket";
inline constexpr char unclosedHeader[] = "unclosed-header";
inline constexpr char missingLastLineBreak[] = "missing-last-line-break";

// Keys.
inline constexpr char missingKey[] = "missing-key";
inline constexpr char missingEquals[] = "missing-equals";
inline constexpr char unquotedKey[] = "unquoted-key";
inline constexpr char multiLineKey[] = "multi-line-key";

// Values.
inline constexpr char missingValue[] = "missing-value";
inline constexpr char secondEquals[] = "second-equals";
inline constexpr char unquotedString[] = "unquoted-string";
inline constexpr char invalidNumber[] = "invalid-number";
inline constexpr char invalidDateTime[] = "invalid-date-time";
inline constexpr char blankAfterDate[] = "blank-after-date";
inline constexpr char invalidBoolean[] = "invalid-boolean";
inline constexpr char nullValue[] = "null-value";

// Strings.
inline constexpr char unclosedString[] = "unclosed-string";
inline constexpr char quoteInString[] = "quote-in-string";
inline constexpr char unknownEscape[] = "unknown-escape";
inline constexpr char shortEscape[] = "short-escape";
inline constexpr char misplacedBackslash[] = "misplaced-backslash";

// Arrays.
inline constexpr char emptyArray[] = "empty-array";
inline constexpr char unclosedArray[] = "unclosed-array";
inline constexpr char missingComma[] = "missing-comma"; // in inline tables, too
inline constexpr char missingElement[] = "missing-element";
inline constexpr char bracketOnOwnLine[] = "bracket-on-own-line";
inline constexpr char commentInArray[] = "comment-in-array";
inline constexpr char blankLineInArray[] = "blank-line-in-array";

// Inline tables.
inline constexpr char emptyInlineTable[] = "empty-inline-table";
inline constexpr char unclosedInlineTable[] = "unclosed-inline-table";

// The document as a whole.
inline constexpr char unreadBytes[] = "unread-bytes";
inline constexpr char nestedTooDeeply[] = "nested-too-deeply";
inline constexpr char tooLarge[] = "too-large";

} // namespace vorn::parsers::toml::diagnosis::codes
