#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "document_token.h"
#include "recognition.h"

namespace vorn::parsers::toml::diagnosis
{

// Reads tokens as the lexer makes them, one after the other; keeps none.
class TokenReader
{
public:
    // Which errors are kept: a document may have as many as bytes.
    enum class Errors
    {
        all,
        independent, // none that follows from an earlier one
    };

    // From an offset on, which is that of a token.
    TokenReader(std::string_view text, std::size_t begin, Errors errors);
    TokenReader(const TokenReader&) = delete;
    TokenReader& operator=(const TokenReader&) = delete;
    ~TokenReader();

    // At the end, endOfInput; then its place is where the lexer found it, before that of the
    // bytes if it misreads some.
    DocumentToken next();

    // Those before the last token that was returned.
    const std::vector<LexicalError>& errors() const { return errors_; }

private:
    struct Running;

    std::vector<LexicalError> errors_;
    std::unique_ptr<Running> running_;
};

} // namespace vorn::parsers::toml::diagnosis
