#include "encoding_words.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "characters.h"
#include "codes.h"
#include "scan/utf8.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

unsigned byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

// How many bytes the runtime reads as one character.
std::size_t readLength(unsigned lead)
{
    return lead < 0xC0   ? 1
           : lead < 0xE0 ? 2
           : lead < 0xF0 ? 3
           : lead < 0xF8 ? 4
           : lead < 0xFC ? 5
                         : 6;
}

// Whether the character that it starts is cut off: it is read as the end of the file.
bool isCutOff(std::string_view text, std::size_t at)
{
    return at + readLength(byteAt(text, at)) > text.size();
}

bool isMisread(std::string_view text, std::size_t at)
{
    const std::string_view taken = text.substr(at + 1, readLength(byteAt(text, at)) - 1);
    return isCutOff(text, at) || taken.find_first_of("\"'\\\r\n#=,.[]{}") != std::string_view::npos;
}

// Whether the byte is a letter or a sign of these encodings that stands alone.
bool looksLikeLatin1(std::string_view text, std::size_t at)
{
    const unsigned byte = byteAt(text, at);
    const bool isPunctuation = byte == 0x80 || byte == 0x85 || (byte >= 0x91 && byte <= 0x97);
    return at + 1 < text.size() && (byte >= 0xA0 || isPunctuation) &&
           (isAscii(text[at + 1]) || byteAt(text, at + 1) >= 0xC0);
}

std::string latin1Hint(unsigned byte, std::size_t count)
{
    const std::string letter = {static_cast<char>(0xC0U | (byte >> 6U)),
                                static_cast<char>(0x80U | (byte & 0x3FU))};
    return byte <= 0xA0 || byte == 0xAD ? "It looks like Windows-1252. Save the file as UTF-8."
           : count > 1 ? "It looks like Latin-1 or Windows-1252. Save the file as UTF-8."
                       : "It looks like Latin-1 or Windows-1252, where it stands for '" + letter +
                             "'. Save the file as UTF-8.";
}

} // namespace

Mistake malformedBytes(std::string_view text, std::size_t at, Severity severity)
{
    if (isUtf16(text))
    {
        return otherEncoding(at, severity);
    }
    char byte[8] = {};
    std::snprintf(byte, sizeof(byte), "%02X", byteAt(text, at));
    return {severity,
            at,
            at + 1,
            codes::notUtf8,
            "the byte " + std::string(byte) + " is not valid UTF-8",
            looksLikeLatin1(text, at) ? latin1Hint(byteAt(text, at), 1)
            : isCutOff(text, at)
                ? "It is read as the end of the file. Save the file as UTF-8."
                : "It may be read as one character together with the bytes after it. Save the "
                  "file as UTF-8."};
}

std::string encodingHint(std::string_view text, std::size_t at, std::size_t count)
{
    return looksLikeLatin1(text, at) && !isUtf16(text) ? latin1Hint(byteAt(text, at), count) : "";
}

std::optional<Mistake> malformedIn(std::string_view part, std::string_view text)
{
    const std::size_t at = findMalformed(part);
    if (at == std::string_view::npos)
    {
        return std::nullopt;
    }
    const auto begin = static_cast<std::size_t>(part.data() - text.data());
    return malformedBytes(text, begin + at, Severity::error);
}

bool isUtf16(std::string_view text)
{
    constexpr std::size_t looked = 64;
    const std::string_view start = text.substr(0, 2);
    if (start == "\xff\xfe" || start == "\xfe\xff")
    {
        return true;
    }
    const std::size_t end = std::min(text.size(), looked) & ~std::size_t(1);
    std::size_t low = 0;
    std::size_t high = 0;
    for (std::size_t at = 0; at < end; at += 2)
    {
        low += text[at] != '\0' && text[at + 1] == '\0' ? 1 : 0;
        high += text[at] == '\0' && text[at + 1] != '\0' ? 1 : 0;
    }
    return end >= 4 && std::max(low, high) == end / 2;
}

Mistake otherEncoding(std::size_t at, Severity severity)
{
    return {severity,
            at,
            at + 1,
            codes::utf16,
            "the file is encoded in UTF-16",
            "TOML is UTF-8. Save the file as UTF-8. The rest is not checked until then."};
}

std::optional<std::size_t> misreadIn(std::string_view text, std::size_t begin, std::size_t end)
{
    end = std::min(end, text.size());
    for (std::size_t at = findMalformed(text.substr(0, end), begin); at < end;
         at = findMalformed(text.substr(0, end), at + 1))
    {
        // (The end of the range may be within a character.)
        if (!characterAt(text, at).isWellFormed && (at + 1 == end || isMisread(text, at)))
        {
            return at;
        }
    }
    return std::nullopt;
}

} // namespace vorn::parsers::toml::diagnosis
