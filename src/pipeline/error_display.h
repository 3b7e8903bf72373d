// What surrounds the runtime's displays of errors: they print the same, but no longer
// need memory that grows with every error.
#pragma once

#include <antlr3.h>

#include <initializer_list>

namespace vorn::parsers::toml
{

// The runtime's default lexer display passes the offending character to isprint(), whose
// domain ends at 255, and prints no more than its low byte, which may be that of a printable
// character.  In place of a character beyond that it gets the first byte of the character's
// UTF-8 sequence, which it prints as a number.
class PrintableCharacter
{
public:
    explicit PrintableCharacter(pANTLR3_EXCEPTION exception)
        : exception_(exception), character_(exception->c)
    {
        if (character_ != ANTLR3_CHARSTREAM_EOF && character_ > 0xFF)
        {
            exception_->c = leadByte(character_);
        }
    }
    PrintableCharacter(const PrintableCharacter&) = delete;
    PrintableCharacter& operator=(const PrintableCharacter&) = delete;
    ~PrintableCharacter() { exception_->c = character_; }

private:
    using Character = decltype(ANTLR3_EXCEPTION::c);

    static Character leadByte(Character c) noexcept
    {
        // A sequence of so many bytes has five bits for each, and one more.
        unsigned bytes = 2;
        while (bytes < 6 && c >> (5 * bytes + 1) != 0)
        {
            ++bytes;
        }
        return (0xFF00U >> bytes | c >> 6 * (bytes - 1)) & 0xFF;
    }

    pANTLR3_EXCEPTION exception_;
    Character character_;
};

// Frees the strings that a factory has made, but for the first few.
void forgetStrings(pANTLR3_STRING_FACTORY factory, ANTLR3_UINT32 kept);

// Frees the strings that a factory makes while this lives.
class TemporaryStrings
{
public:
    explicit TemporaryStrings(pANTLR3_STRING_FACTORY factory)
        : factory_(factory), kept_(factory->index)
    {
    }
    TemporaryStrings(const TemporaryStrings&) = delete;
    TemporaryStrings& operator=(const TemporaryStrings&) = delete;
    ~TemporaryStrings() { forgetStrings(factory_, kept_); }

private:
    pANTLR3_STRING_FACTORY factory_;
    ANTLR3_UINT32 kept_;
};

// How many errors the recognisers have counted, one after the other.
int countSyntaxErrors(std::initializer_list<pANTLR3_BASE_RECOGNIZER> recognisers);

// Frees the exceptions before the last one.  The runtime keeps them all, unused.
void forgetEarlierErrors(pANTLR3_BASE_RECOGNIZER recogniser) noexcept;

// Forgets the tokens that a parser has put in where one was missing.
void forgetConjured(pANTLR3_BASE_RECOGNIZER parser) noexcept;

// The factory of the strings that a parser's display makes, none of which is kept: a token
// that keeps its string has it already.
pANTLR3_STRING_FACTORY prepareDisplay(pANTLR3_PARSER parser) noexcept;

// The same for a tree parser's display, which gets the text of the offending tree from
// textOf().
pANTLR3_STRING_FACTORY prepareDisplay(pANTLR3_TREE_PARSER parser) noexcept;

} // namespace vorn::parsers::toml
