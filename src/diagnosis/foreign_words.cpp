#include "foreign_words.h"

#include <algorithm>

#include "codes.h"
#include "scan/scanner.h"
#include "token_words.h"
#include "unquoted.h"
#include "value_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr std::size_t npos = std::string_view::npos;

// In bytes: a longer line is not repeated in a hint.
constexpr std::size_t maxHinted = 60;

std::size_t lineBegin(std::string_view text, std::size_t at)
{
    const std::size_t lineBreak = at == 0 ? npos : text.rfind('\n', at - 1);
    return lineBreak == npos ? 0 : lineBreak + 1;
}

std::string_view lineBefore(std::string_view text, std::size_t at)
{
    const std::size_t begin = lineBegin(text, at);
    const std::string_view before = text.substr(begin, at - begin);
    return before.substr(std::min(before.find_first_not_of(" \t"), before.size()));
}

Mistake about(std::string_view part, std::size_t at, const char* code, std::string&& message,
              std::string&& hint)
{
    return {Severity::error, at, at + part.size(), code, std::move(message), std::move(hint)};
}

// How much of the text is a token that starts it.
std::size_t sizeOf(const Token& token, std::string_view text)
{
    return token.type == TokenType::none ? 0 : static_cast<std::size_t>(token.end - text.data());
}

// The value of a pair of another language, as it is written here; empty if it is not known.
std::string valueOf(std::string_view text, std::size_t begin)
{
    const std::string_view rest = restOfLine(text, begin);
    if (rest.empty() || rest.find_first_of("[{=|>") == 0 || rest.substr(0, 2) == "# ")
    {
        return {};
    }
    const Token token = scanToken(rest.data(), rest.data() + rest.size());
    const std::string_view read = rest.substr(0, sizeOf(token, rest));
    if (rest[0] == '"' || rest[0] == '\'')
    {
        const std::string_view after = restOfLine(rest, read.size());
        const bool isAlone = after.empty() || after.find_first_of(",;#/") == 0;
        return std::string(isString(token.type) && isAlone ? read : std::string_view());
    }
    const std::string_view value = unquotedAt(rest, 0, false);
    if (isValueLikeKey(token.type) && read == value)
    {
        return std::string(value);
    }
    // What means something else elsewhere, as null, is not meant as a string.
    const bool isText = forUnquoted(value).code == codes::unquotedString;
    return inQuotes(isText ? value : std::string_view());
}

// Where, after the first word of a key, its other words end; npos if there is no value.
std::size_t keyEnd(std::string_view rest)
{
    const std::size_t colon = std::min(rest.find(": "), rest.find(":\t"));
    const std::size_t last = rest.empty() || rest.back() != ':' ? npos : rest.size() - 1;
    return std::min({rest.find('='), colon, last});
}

// ": key = value", as it is meant if both are short.
std::string pairOf(std::string_view key, const std::string& value)
{
    key = key.substr(0, key.find_last_not_of(" \t") + 1);
    const bool isShown = !inQuotes(key).empty() && !inQuotes(value).empty() &&
                         key.size() + value.size() <= maxHinted;
    if (!isShown)
    {
        return ": key = value.";
    }
    std::string pair = ": ";
    return pair.append(key).append(" = ").append(value) += '.';
}

// Of a key of several words: with its value if that is known.
std::string quotedKeyHint(std::string_view words, const std::string& value)
{
    const std::string key = inQuotes(words);
    const std::string hint = "A key of several words needs quotes";
    if (key.empty())
    {
        return hint + '.';
    }
    if (value.empty())
    {
        return hint + ": " + key + '.';
    }
    return hint + pairOf(key, value);
}

} // namespace

std::optional<Mistake> mergeConflictAt(std::string_view text, std::size_t at)
{
    constexpr std::size_t size = 7;
    constexpr std::string_view kinds = "<=>|";
    const std::string_view line = text.substr(at, text.find('\n', at) - at);
    if (line.size() < size || at != lineBegin(text, at) || kinds.find(line[0]) == npos ||
        line.substr(0, size).find_first_not_of(line[0]) != npos)
    {
        return std::nullopt;
    }
    const std::string_view rest = line.substr(size);
    const bool endsLine = rest.empty() || rest == "\r";
    if (line[0] == '=' ? !endsLine : !endsLine && rest[0] != ' ')
    {
        return std::nullopt;
    }
    return about(restOfLine(text, at), at, codes::mergeConflict, "this line marks a merge conflict",
                 "Choose between the lines from '<<<<<<<' to '>>>>>>>', and remove the markers.");
}

std::optional<Mistake> foreignCommentAt(std::string_view text, std::size_t at)
{
    const std::string_view rest = restOfLine(text, at);
    const bool isLong = rest.substr(0, 2) == "//" || rest.substr(0, 2) == "/*";
    const bool followsBlank =
        at == lineBegin(text, at) || text[at - 1] == ' ' || text[at - 1] == '\t';
    const bool isShort = rest.substr(0, 1) == ";" && rest.size() > 1 && followsBlank;
    if (!isLong && !isShort)
    {
        return std::nullopt;
    }
    const std::size_t size = isLong ? 2 : 1;
    const bool isClosed =
        rest.size() >= 4 && rest[1] == '*' && rest.substr(rest.size() - 2) == "*/";
    const std::string_view content =
        restOfLine(rest.substr(0, rest.size() - (isClosed ? 2 : 0)), size);
    std::string hint = "Write # before a comment.";
    if (!inQuotes(content).empty() && content.find("*/") == npos)
    {
        hint = "Write # ";
        hint.append(content) += " instead.";
    }
    return about(rest, at, codes::foreignComment,
                 "a comment starts with '#', not with '" + std::string(rest.substr(0, size)) + '\'',
                 std::move(hint));
}

std::optional<Mistake> colonAt(std::string_view text, std::size_t at)
{
    const std::string_view before = lineBefore(text, at);
    if (text[at] != ':' || before.empty() || before[0] == '[')
    {
        return std::nullopt;
    }
    const std::string_view rest = restOfLine(text, at + 1);
    const bool isAlone = before.find_first_of("=,{}[]") == npos;
    std::string hint = "Write '=' between a key and its value" +
                       pairOf(isAlone ? before : std::string_view(), valueOf(text, at + 1));
    hint += rest.empty() ? " A table starts with a header, [key]." : "";
    return about(text.substr(at, 1), at, codes::missingEquals,
                 "expected '=' after the key, found ':'", std::move(hint));
}

Words forWords(const Site& site)
{
    const std::string_view text = site.text;
    std::string message =
        "expected '=' after the key, found " + described(site.found, site.foundText());
    const std::size_t begin = site.found.begin;
    const std::string_view key = lineBefore(text, begin);
    const std::string_view firstWord = key.substr(0, key.find_first_of(" \t"));
    if (firstWord == "-" || firstWord == "---")
    {
        return {codes::missingEquals, std::move(message),
                "It looks like YAML. An array is written key = [\"a\", \"b\"]."};
    }
    if (firstWord == "--")
    {
        return {codes::foreignComment, std::move(message), "A comment starts with '#'."};
    }
    const std::string_view rest = restOfLine(text, begin);
    const std::size_t end = keyEnd(rest);
    if (end != npos && rest.find_first_of("\"'#") > end)
    {
        const std::size_t offset = begin - key.size();
        const std::string_view words = restOfLine(text.substr(0, begin + end), offset);
        const bool isOneKey = words.find_first_of("\"'.") == npos && firstWord != "export";
        return {codes::unquotedKey, std::move(message),
                isOneKey ? quotedKeyHint(words, valueOf(text, begin + end + 1))
                         : "A pair is written key = value. A key of several words needs quotes."};
    }
    return {codes::missingEquals, std::move(message),
            "Write '=' between a key and its value" + pairOf(key, valueOf(text, begin))};
}

} // namespace vorn::parsers::toml::diagnosis
