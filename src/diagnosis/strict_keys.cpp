#include "strict_keys.h"

#include "scan/character_run.h"
#include "scan/string_scanner.h"
#include "strict_escapes.h"

namespace vorn::parsers::toml::diagnosis
{

std::string_view keyPart(const char* begin, const char* end)
{
    const char* const stop = *begin == '"'    ? scanBasic(begin, end).end
                             : *begin == '\'' ? scanLiteral(begin, end).end
                                              : runEnd<KeyCharacters>(begin, end);
    return {begin, static_cast<std::size_t>(stop - begin)};
}

KeyParts::KeyParts(std::string_view key)
    : end_(key.data() + key.size()), part_(keyPart(key.data(), end_))
{
}

void KeyParts::next()
{
    // There is a dot, perhaps with blanks around it.
    const char* const dot = skip(part_.data() + part_.size(), end_, blank);
    part_ = keyPart(skip(dot + 1, end_, blank), end_);
}

std::string_view nameOf(std::string_view part, std::string& buffer)
{
    const bool isBasic = part[0] == '"';
    if (!isBasic && part[0] != '\'')
    {
        return part;
    }
    const std::string_view inner = part.substr(1, part.size() - 2);
    if (!isBasic || inner.find('\\') == std::string_view::npos)
    {
        return inner;
    }
    buffer.clear();
    std::size_t at = 0;
    for (Escape escape = nextEscape(inner, at); !escape.text.empty();
         escape = nextEscape(inner, at))
    {
        const auto begin = static_cast<std::size_t>(escape.text.data() - inner.data());
        buffer.append(inner, at, begin - at);
        appendCharacter(buffer, escape.code);
        at = begin + escape.text.size();
    }
    buffer.append(inner, at);
    return buffer;
}

} // namespace vorn::parsers::toml::diagnosis
