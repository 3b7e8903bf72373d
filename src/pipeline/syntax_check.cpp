#include "syntax_check.h"

#include "error_display.h"
#include "follow_stack.h"
#include "memory_need.h"
#include "no_tree.h"
#include "unreported_errors.h"

#include "recognisers.h"

namespace vorn::parsers::toml
{
namespace
{

// Passes over valid lines, and forgets what the parser has got for the one before.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it is destroyed as what it is.
class PassedLines : public LineStarts
{
public:
    PassedLines(pANTLR3_BASE_RECOGNIZER parser, TokenWindow& tokens) noexcept
        : parser_(parser), tokens_(tokens)
    {
    }

    void startLine(pANTLR3_BITSET_LIST follow) override
    {
        follow_ = follow;
        tokens_.enterLine();
        forgetConjured(parser_);
    }

    pANTLR3_BITSET_LIST follow() const noexcept { return follow_; }

private:
    pANTLR3_BASE_RECOGNIZER parser_;
    TokenWindow& tokens_;
    pANTLR3_BITSET_LIST follow_ = nullptr;
};

} // namespace

Syntax checkSyntax(TomlParser& parser, TokenWindow& tokens)
{
    const NoTree noTree(parser.adaptor);
    PassedLines lines(parser.pParser->rec, tokens);
    const FollowStack follows(parser.pParser, &lines);
    tokens.recycleFor(parser.pParser->rec);
    const pANTLR3_BASE_TREE document = parser.document(&parser).tree;
    return {noTree.isOfFailure(document), follows.levelsWithoutRoom(), lines.follow()};
}

bool hasMemory(TomlParser& parser, DocumentLines& lines, TokenWindow& tokens)
{
    const std::size_t size = lines.lexer()->input->sizeBuf;
    if (isMemoryLeft(memoryForReading(size, size, size)))
    {
        return true;
    }
    const pANTLR3_BASE_RECOGNIZER recogniser = parser.pParser->rec;
    const UnreportedErrors ofLexer(lines.lexer()->rec);
    const UnreportedErrors ofParser(recogniser);
    const DocumentLines::Found found = lines.reportErrors();
    if (!isMemoryLeft(memoryForChecking(size, found.tokens, found.brackets, found.listed)))
    {
        return false;
    }
    checkSyntax(parser, tokens);
    const std::size_t longest = tokens.longestStatement();
    recogniser->reset(recogniser);
    tokens.restart();
    return isMemoryLeft(memoryForReading(size, longest, found.brackets));
}

void startOver(const TomlParser& parser, TokenWindow& tokens)
{
    const pANTLR3_BASE_RECOGNIZER recogniser = parser.pParser->rec;
    const ANTLR3_UINT32 errors = recogniser->state->errorCount;
    recogniser->reset(recogniser);
    recogniser->state->errorCount = errors;
    recogniser->reportError = [](pANTLR3_BASE_RECOGNIZER failed)
    {
        failed->state->errorRecovery = ANTLR3_TRUE;
        forgetEarlierErrors(failed);
    };
    tokens.restart();
}

} // namespace vorn::parsers::toml
