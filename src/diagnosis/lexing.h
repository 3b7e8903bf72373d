#pragma once

#include <new>
#include <string_view>

#include "error_collection.h"
#include "pipeline/input_stream.h"
#include "pipeline/memory_need.h"
#include "pipeline/owned.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml::diagnosis
{

// The runtime does not survive an allocation that fails: it is not asked for what there is not.
inline void requireMemory(std::size_t size)
{
    if (!isMemoryLeft(size))
    {
        throw std::bad_alloc();
    }
}

// What the runtime has made; it says by null that there is no memory.
template <typename Object>
Owned<Object> owned(Object* made)
{
    if (made == nullptr)
    {
        throw std::bad_alloc(); // There was enough just before.  GCOVR_EXCL_LINE
    }
    return Owned<Object>(made);
}

// The lexer of a document, from an offset on, whose errors are collected.
struct Lexing
{
    Lexing(std::string_view text, std::size_t begin, std::vector<LexicalError>& errors,
           bool onlyIndependent)
        : input((requireMemory(memoryForLexing(0)), owned(openStream(text)))),
          lexer(owned(TomlLexerNew(input.get()))), collection{errors, *input, onlyIndependent, {}}
    {
        // (Only at its very beginning does a document have a byte order mark.)
        if (begin > 0)
        {
            input->nextChar = static_cast<char*>(input->data) + begin;
        }
        collectErrors(lexer->pLexer->rec, collection);
    }

    // Where the lexer is.
    std::size_t place() const
    {
        return collection.offset(reinterpret_cast<ANTLR3_MARKER>(input->nextChar));
    }

    DocumentToken documentToken(const ANTLR3_COMMON_TOKEN& token) const
    {
        return {static_cast<TokenType>(token.type), collection.offset(token.start),
                collection.offset(token.stop) + 1};
    }

    const Owned<ANTLR3_INPUT_STREAM> input;
    const Owned<TomlLexer> lexer;
    LexicalErrors collection;
};

} // namespace vorn::parsers::toml::diagnosis
