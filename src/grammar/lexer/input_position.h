#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml
{

// Where an input is, to go back there.  The stream's own rewind() compares addresses as
// signed numbers: where a text lies in the middle of a 32-bit address space, it takes
// four thousand million steps.
class InputPosition
{
public:
    InputPosition() noexcept = default; // nowhere
    explicit InputPosition(pANTLR3_INPUT_STREAM input) noexcept
        : input_(input), next_(input->nextChar), line_(input->line),
          currentLine_(input->currentLine), column_(input->charPositionInLine)
    {
    }

    void goBack() const noexcept
    {
        input_->nextChar = next_;
        input_->line = line_;
        input_->currentLine = currentLine_;
        input_->charPositionInLine = column_;
    }

private:
    pANTLR3_INPUT_STREAM input_;
    decltype(ANTLR3_INPUT_STREAM::nextChar) next_;
    decltype(ANTLR3_INPUT_STREAM::line) line_;
    decltype(ANTLR3_INPUT_STREAM::currentLine) currentLine_;
    decltype(ANTLR3_INPUT_STREAM::charPositionInLine) column_;
};

// Moves an input whose characters are bytes of UTF-8 in memory to `end`, which is after its
// position; does the same as to consume each character.
void advance(ANTLR3_INPUT_STREAM& input, const char* end) noexcept;

} // namespace vorn::parsers::toml
