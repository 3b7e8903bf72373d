// A view of the pipeline from inside.  The program that links this wraps the calls that
// create the runtime's objects (--wrap of the linker).
#pragma once

#include <antlr3.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace test
{

// What the driver does with the runtime's objects, step by step: "new lexer",
// "free lexer", "display lexer", "count lexer", "parse", "walk", ...
using Steps = std::vector<std::string>;

// The steps of a reading up to its walk, and those that end it.
const Steps& creation();
const Steps& release();

// The arguments of the calls that create objects.
struct CreationArguments
{
    const void* data = nullptr;
    ANTLR3_UINT32 encoding = 0;
    ANTLR3_UINT32 size = 0;
    std::string name;
    const void* lexerInput = nullptr;
    ANTLR3_UINT32 tokensHint = 0;
    const void* tokenSource = nullptr;
    const void* parserTokens = nullptr;
    const void* nodesTree = nullptr;
    unsigned nodesChildren = 1;
    ANTLR3_UINT32 nodesHint = 0;
    const void* treeNodes = nullptr;
    const void* visitor = nullptr;
};

// The objects that were made, for comparison with the arguments.
struct CreatedObjects
{
    const void* input = nullptr;
    const void* tokenSource = nullptr; // the lexer's
    const void* tokens = nullptr;
    const void* document = nullptr; // the tree that the parser answered with
    const void* nodes = nullptr;
};

// Watches the pipelines that are built while it lives; one at a time.
class PipelineSpy
{
public:
    using Display = std::function<void(const std::string& kind, pANTLR3_BASE_RECOGNIZER recogniser,
                                       pANTLR3_UINT8* tokenNames)>;
    using Report = std::function<void(pANTLR3_BASE_RECOGNIZER recogniser)>;

    PipelineSpy();
    PipelineSpy(const PipelineSpy&) = delete;
    PipelineSpy& operator=(const PipelineSpy&) = delete;
    ~PipelineSpy();

    // The creation of this object ("lexer") fails.
    std::string failing;
    // What the recognisers say instead of their counts of errors: lexer, parser, tree.
    std::vector<ANTLR3_UINT32> claimedErrors;
    // Called in a default display, before it prints.
    Display onDisplay;
    // Called when the lexer has reported an error.
    Report onLexerReport;

    Steps steps;
    CreationArguments arguments;
    CreatedObjects created;
};

} // namespace test
