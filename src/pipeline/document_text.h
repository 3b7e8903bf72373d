#pragma once

#include <antlr3.h>

#include <cstddef>

#include "document_lines.h"
#include "error_display.h"
#include "runtime_text.h"
#include "token_window.h"

namespace vorn::parsers::toml
{

// What the reports of a parser's errors say of the whole document, which nobody has in tokens.
// The lexer's errors must not be reported meanwhile.
class DocumentText
{
public:
    DocumentText(DocumentLines& lines, TokenWindow& tokens) noexcept
        : lines_(lines), tokens_(tokens)
    {
    }

    // The index of a token that a report names.
    std::size_t indexOf(const ANTLR3_COMMON_TOKEN& token) noexcept;

    // The text of all tokens, joined, as the runtime's token stream has it; empty where memory
    // runs out, or no index has been asked for.
    const char* characters() const noexcept { return orEmpty(text_); }

private:
    void make(const ANTLR3_COMMON_TOKEN& reported) noexcept;

    DocumentLines& lines_;
    TokenWindow& tokens_;
    OwnedText text_;
};

// Gives a token its index in the document while this lives.
class ShownIndex
{
public:
    ShownIndex(pANTLR3_COMMON_TOKEN token, DocumentText& document) noexcept
        : token_(token), index_(token->index)
    {
        token->index = static_cast<decltype(index_)>(document.indexOf(*token));
    }
    ShownIndex(const ShownIndex&) = delete;
    ShownIndex& operator=(const ShownIndex&) = delete;
    ~ShownIndex() { token_->index = index_; }

private:
    pANTLR3_COMMON_TOKEN token_;
    decltype(ANTLR3_COMMON_TOKEN::index) index_;
};

// What is needed around the runtime's display of a parser's error.
struct ParserDisplay
{
    TemporaryStrings strings;
    ShownIndex index;
};

} // namespace vorn::parsers::toml
