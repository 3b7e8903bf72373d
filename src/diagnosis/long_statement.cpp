#include "long_statement.h"

#include "choice.h"
#include "lexer_cursor.h"
#include "lexical_words.h"
#include "syntax_words.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// What is around a token.
Site siteOf(const DocumentToken& refused, std::string_view text, std::size_t statement,
            const DamagedPart& part)
{
    TokenReader reader(text.substr(0, part.part.end), statement, TokenReader::Errors::independent);
    Follower follower;
    DocumentToken before = {TokenType::endOfInput, 0, 0};
    DocumentToken token = reader.next();
    bool hasStarted = false;
    while (token.begin < refused.begin)
    {
        // (Empty lines before the statement.)
        hasStarted = hasStarted || token.type != TokenType::newline;
        if (hasStarted)
        {
            follower.take(token);
        }
        before = token;
        token = reader.next();
    }
    const bool endsPart = token.type == TokenType::endOfInput;
    // After the last part there is nothing.
    const DocumentToken next = part.isLast ? token : part.part.next;
    const DocumentToken after = endsPart ? next : reader.next();
    return {text, before, endsPart ? next : token, after, follower.place(), part.closesBrackets};
}

} // namespace

std::optional<Mistake> firstMistake(std::string_view text, const DamagedPart& part)
{
    const std::string_view lines = text.substr(0, part.part.end);
    const std::size_t size = 2 * (part.part.end - part.part.begin);
    const Scratch<NestingStack::Word, 64> words(NestingStack::wordsFor(size));
    if (words.begin() == nullptr)
    {
        throw std::bad_alloc();
    }
    NestingStack nesting(words.begin(), size);
    LastLine last;
    LexerCursor cursor(lines, part.part.begin);
    const bool isRead = Reader<LastLine, LexerCursor&>(cursor, nesting, last).lines();
    if (!cursor.errors().empty() &&
        (isRead || cursor.errors().front().begin <= cursor.refused().begin))
    {
        return mistakeOf(cursor.errors().front(), text);
    }
    if (isRead)
    {
        return std::nullopt;
    }
    const std::size_t statement = last.end() != nullptr
                                      ? static_cast<std::size_t>(last.end() - text.data())
                                      : part.part.begin;
    const Site site = siteOf(cursor.refused(), text, statement, part);
    if (site.place.due == Due::lineEnd && site.found.type == TokenType::endOfInput)
    {
        return missingLineBreak(text, site.found.begin);
    }
    return mistakeAt(site);
}

} // namespace vorn::parsers::toml::diagnosis
