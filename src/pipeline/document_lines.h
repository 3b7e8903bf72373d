#pragma once

#include <antlr3.h>

#include <string_view>

#include "direct/direct_lines.h"
#include "grammar/lexer/input_position.h"
#include "grammar/lexer/matching.h"

namespace vorn::parsers::toml
{

// The lines of a document, where it takes two to read them: the direct reader passes over those
// that are valid, and the lexer makes tokens of the others.
//
// The lexer keeps nothing from one token to the next but its position, so that it may stop and go
// on after any token of line breaks.
class DocumentLines
{
public:
    // The lexer is at the start of its input, the text that the other reads.
    DocumentLines(pANTLR3_LEXER lexer, DirectLines& direct) noexcept
        : lexer_(lexer), start_(lexer->input), direct_(direct)
    {
    }

    DocumentLines(const DocumentLines&) = delete;
    DocumentLines& operator=(const DocumentLines&) = delete;
    ~DocumentLines();

    pANTLR3_LEXER lexer() const noexcept { return lexer_; }

    // Goes back to the start.
    void restart() const noexcept { start_.goBack(); }

    // Passes over valid lines, where the lexer is at the text's start or after line breaks. Returns
    // their text, empty if none is valid; it ends before the first token that the lexer gets to
    // next.
    std::string_view passValid();

    // The lines that were passed last, to the visitor; for the buffer see DirectLines.
    std::size_t longestText() const noexcept { return direct_.longestText(); }
    void handTo(ITomlTreeVisitor& visitor, char* buffer) { direct_.handTo(visitor, buffer); }

    // What the lexer finds in lines that are not valid.
    struct Found
    {
        std::size_t tokens = 0;
        std::size_t brackets = 0; // that open an array or an inline table
        // What the parser may list at once: the elements, pairs or parts of a key that it is in the
        // middle of, what separates them, and line breaks.
        std::size_t listed = 0;
    };

    // Has the lexer report its errors, and goes back to the start.
    Found reportErrors();

    // Goes over the rest of the document: calls `onValid` with the text of valid lines, and
    // `onToken` with each token of the other ones, which the next one replaces.
    template <typename OnValid, typename OnToken>
    void forEach(OnValid onValid, OnToken onToken)
    {
        bool atLineStart = true;
        for (;;)
        {
            if (atLineStart)
            {
                if (const std::string_view valid = passValid(); !valid.empty())
                {
                    onValid(valid);
                }
            }
            const pANTLR3_COMMON_TOKEN token = nextToken();
            if (token->type == ANTLR3_TOKEN_EOF)
            {
                return;
            }
            onToken(*token);
            atLineStart = isNewline(token->type);
        }
    }

private:
    pANTLR3_COMMON_TOKEN nextToken();

    pANTLR3_LEXER lexer_;
    const InputPosition start_;
    DirectLines& direct_;
};

} // namespace vorn::parsers::toml
