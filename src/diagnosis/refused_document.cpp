#include "refused_document.h"

#include <new>

#include "codes.h"
#include "pipeline/refusal.h"
#include "pipeline/stack_room.h"
#include "recognition.h"
#include "statements.h"
#include "token_reader.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

constexpr const char* hint = "It has bytes that are not valid UTF-8: without these it is read.";

// Where the levels of arrays and inline tables are deepest.
struct Deepest
{
    std::size_t levels = 0;
    DocumentToken bracket = {};
};

Deepest deepestIn(const std::string& text)
{
    TokenReader reader(text, 0, TokenReader::Errors::independent);
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

bool hasRoom(const std::string& text)
{
    return !recognise(text, wholeOf(text)).isTooDeep;
}

} // namespace

std::optional<Mistake> refusedDocument(const std::string& text)
{
    const Refusal refusal = refusalOf(text);
    if (refusal.reason == Refusal::Reason::tooLarge)
    {
        return tooLarge();
    }
    const Deepest deepest = deepestIn(text);
    if (refusal)
    {
        return tooDeep(deepest.bracket);
    }
    // The parser alone knows how much of the stack it takes.
    if (deepest.levels > safeLevels && !hasRoom(text))
    {
        return tooDeep(deepest.bracket);
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
