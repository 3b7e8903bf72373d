// Bytes of other encodings than UTF-8, in words.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "mistake.h"

namespace vorn::parsers::toml::diagnosis
{

// Bytes that are not valid UTF-8.
Mistake malformedBytes(std::string_view text, std::size_t at, Severity severity);

// What encoding such bytes look like, adjacent ones; empty if they look like none.
std::string encodingHint(std::string_view text, std::size_t at, std::size_t count);

// That of a part of the text, if it has such bytes.
std::optional<Mistake> malformedIn(std::string_view part, std::string_view text);

// Whether the document is UTF-16: then nothing in it means anything.
bool isUtf16(std::string_view text);
Mistake otherEncoding(std::size_t at, Severity severity);

// The first byte of a range with which the lexer misreads what follows: it takes a quote, a line
// break or the like for a part of a character.  Errors after it may follow from that.
std::optional<std::size_t> misreadIn(std::string_view text, std::size_t begin, std::size_t end);

} // namespace vorn::parsers::toml::diagnosis
