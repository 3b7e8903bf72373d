#include "refused_document.h"

#include <string_view>

#include "codes.h"
#include "damaged_part.h"
#include "document_depth.h"
#include "pipeline/refusal.h"
#include "pipeline/stack_room.h"
#include "recognition.h"
#include "scan/utf8.h"
#include "statements.h"
#include "token_reader.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr const char* hint = "It has bytes that are not valid UTF-8: without these it is read.";

// Where the levels of arrays and inline tables are deepest in a part.
struct Deepest
{
    std::size_t levels = 0;
    DocumentToken bracket = {};
};

Deepest deepestIn(std::string_view text, const Part& part)
{
    TokenReader reader(text.substr(0, part.end), part.begin, TokenReader::Errors::independent);
    std::vector<DocumentToken> tokens(1);
    OpenBrackets brackets;
    Deepest deepest;
    for (tokens[0] = reader.next(); tokens[0].type != TokenType::endOfInput;
         tokens[0] = reader.next())
    {
        brackets.take(tokens, 0);
        if (brackets.depth() > deepest.levels)
        {
            deepest = {brackets.depth(), tokens[0]};
        }
    }
    return deepest;
}

Mistake tooDeep(const DocumentToken& bracket)
{
    return {Severity::error,
            bracket.begin,
            bracket.end,
            codes::nestedTooDeeply,
            "arrays or inline tables are nested too deeply for the stack of the thread",
            hint};
}

// The parser alone knows how much of the stack it takes.
bool isTooDeep(std::string_view text, const Part& part, std::size_t levels)
{
    return levels > safeLevels && recognise(text, part).isTooDeep;
}

} // namespace

std::optional<Mistake> refusedDocument(const std::string& text, const ValidLines& lines)
{
    LastLine sink;
    std::size_t at = lines.pass(byteOrderMarkLength(text), sink);
    const std::string_view rest = std::string_view(text).substr(at);
    const Refusal refusal = refusalOf(text.size(), documentDepth(rest));
    if (refusal.reason == Refusal::Reason::tooLarge)
    {
        return tooLarge();
    }
    while (at < text.size())
    {
        const DamagedPart damaged = damagedPart(text, at, lines);
        const Deepest deepest = deepestIn(text, damaged.part);
        if (refusal || isTooDeep(text, damaged.part, deepest.levels))
        {
            return tooDeep(deepest.bracket);
        }
        at = damaged.isLast ? text.size() : lines.pass(damaged.part.end, sink);
    }
    return std::nullopt;
}

Mistake tooLarge()
{
    return {Severity::error,
            0,
            0,
            codes::tooLarge,
            "there is not enough memory to read the document",
            ""};
}

} // namespace vorn::parsers::toml::diagnosis
