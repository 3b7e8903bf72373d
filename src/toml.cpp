#include <fcntl.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

#include <vorn/parsers/toml.h>
#include <vorn/utils/file.h>

#include "direct/direct_reader.h"
#include "file_content.h"
#include "log.h"
#include "pipeline/buffer_hints.h"
#include "pipeline/deferred_cancellation.h"
#include "pipeline/document_depth.h"
#include "pipeline/error_display.h"
#include "pipeline/follow_stack.h"
#include "pipeline/held_exception.h"
#include "pipeline/input_stream.h"
#include "pipeline/memory_need.h"
#include "pipeline/node_texts.h"
#include "pipeline/owned.h"
#include "pipeline/refusal.h"
#include "pipeline/runtime_text.h"
#include "reading.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml
{
namespace
{

// What the displays of a call's errors share.
struct Report
{
    OwnedText tokens;     // the text of the parser's tokens, the same for every error
    HeldException thrown; // by the logger
};

// What is shown and logged of an error, for each kind of recogniser: what is needed around the
// runtime's own display of it, and the library's line.
struct RecogniserError
{
    pANTLR3_BASE_RECOGNIZER recogniser;

    static bool isShown(pANTLR3_BASE_RECOGNIZER) { return true; }
};

struct LexerError : RecogniserError
{
    PrintableCharacter prepare() const { return PrintableCharacter(recogniser->state->exception); }
    void operator()(Report&) const
    {
        const OwnedText text = matchedText(static_cast<pANTLR3_LEXER>(recogniser->super));
        VORN_LOG_ERROR("Invalid TOML: lexer failure at: %s", orEmpty(text));
    }
};

struct ParserError : RecogniserError
{
    pANTLR3_PARSER parser() const { return static_cast<pANTLR3_PARSER>(recogniser->super); }
    // What a parser reports that has been ended for want of stack is no error of the document.
    static bool isShown(pANTLR3_BASE_RECOGNIZER failed)
    {
        return FollowStack::of(failed).levelsWithoutRoom() == 0;
    }
    TemporaryStrings prepare() const { return TemporaryStrings(prepareDisplay(parser())); }
    void operator()(Report& report) const
    {
        if (report.tokens == nullptr)
        {
            report.tokens = textOf(parser()->getTokenStream(parser()));
        }
        VORN_LOG_ERROR("Invalid TOML: parser failure at: %s", orEmpty(report.tokens));
    }
};

struct TreeError : RecogniserError
{
    TemporaryStrings prepare() const
    {
        return TemporaryStrings(
            prepareDisplay(static_cast<pANTLR3_TREE_PARSER>(recogniser->super)));
    }
    void operator()(Report&) const { VORN_LOG_ERROR("Invalid TOML: tree parser failure"); }
};

// Has a recogniser show and log its errors.
template <typename Error>
void installErrorDisplay(pANTLR3_BASE_RECOGNIZER recogniser, Report& report)
{
    static const auto runtimeDisplay = recogniser->displayRecognitionError;
    recogniser->state->userp = &report;
    recogniser->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8* tokenNames)
    {
        if (!Error::isShown(failed))
        {
            return;
        }
        const Error error = {{failed}};
        const DeferredCancellation deferred;
        {
            const auto prepared = error.prepare();
            runtimeDisplay(failed, tokenNames);
        }
        Report& shared = *static_cast<Report*>(failed->state->userp);
        shared.thrown.guard([&] { error(shared); });
        forgetEarlierErrors(failed);
    };
}

// A message without arguments, a literal of the caller's, from the caller's place.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
void logFailure(const char* message, const char* function, int line)
{
    VORN_LOG_ERROR_AT(function, line, message);
}
#pragma GCC diagnostic pop

// Owns what the runtime has made.  Where it could not be made a line says so, which comes from
// the place of the call.
template <typename Object>
Owned<Object> owned(Object* made, const char* failure, const char* function = __builtin_FUNCTION(),
                    int line = __builtin_LINE())
{
    if (made == nullptr)
    {
        logFailure(failure, function, line);
    }
    return Owned<Object>(made);
}

// Logs why a document is not read, from the place of the call; always false.
bool refuse(const Refusal& refusal, std::size_t size, const char* function = __builtin_FUNCTION(),
            int line = __builtin_LINE())
{
    if (refusal.reason == Refusal::Reason::tooDeep)
    {
        VORN_LOG_ERROR_AT(function, line, "Failed: input TOML is nested too deeply (%u levels)",
                          refusal.levels);
    }
    else
    {
        VORN_LOG_ERROR_AT(function, line, "Failed: input TOML is too large to diagnose (%zu bytes)",
                          size);
    }
    return false;
}

int countSyntaxErrors(std::initializer_list<pANTLR3_BASE_RECOGNIZER> recognisers)
{
    ANTLR3_UINT32 count = 0;
    for (const pANTLR3_BASE_RECOGNIZER recogniser : recognisers)
    {
        count += recogniser->getNumberOfSyntaxErrors(recogniser);
    }
    return static_cast<int>(count);
}

// The pipeline over `text`, of which `input` is the stream: lexer, token stream, parser, node
// stream, tree parser.  They are freed in the reverse order.
// NOLINTNEXTLINE(readability-function-size): one stage follows the other.
bool visitTomlTree(ANTLR3_INPUT_STREAM* input, std::string_view text, ITomlTreeVisitor& visitor,
                   Refusal& refusal)
{
    const auto lexer = owned(TomlLexerNew(input), "Failed to create toml lexer");
    if (lexer == nullptr)
    {
        return false;
    }
    Report report;
    installErrorDisplay<LexerError>(lexer->pLexer->rec, report);
    if (!isMemoryLeft(memoryForReading(text.size(), survey(lexer->pLexer))))
    {
        refusal.reason = Refusal::Reason::tooLarge;
        return refuse(refusal, text.size());
    }
    const auto tokens = owned(
        antlr3CommonTokenStreamSourceNew(tokenBufferHint, lexer->pLexer->rec->state->tokSource),
        "Failed to create toml token stream");
    if (tokens == nullptr)
    {
        return false;
    }
    const auto parser = owned(TomlParserNew(tokens.get()), "Failed to create toml parser");
    if (parser == nullptr)
    {
        return false;
    }
    installErrorDisplay<ParserError>(parser->pParser->rec, report);
    const FollowStack parserFollows(parser->pParser);

    // Errors do not stop the walk: the visitor gets what the parser could make out.
    const pANTLR3_BASE_TREE document = parser->document(parser.get()).tree;
    report.thrown.pass();
    if (const unsigned levels = parserFollows.levelsWithoutRoom(); levels > 0)
    {
        refusal = {Refusal::Reason::tooDeep, std::max(levels, documentDepth(text))};
        return refuse(refusal, text.size());
    }
    const auto nodes = owned(antlr3CommonTreeNodeStreamNewTree(document, nodeBufferHint),
                             "Failed to create toml node stream");
    if (nodes == nullptr)
    {
        return false;
    }
    const NodeTexts texts(nodes.get());
    const auto tree = owned(TomlTreeNew(nodes.get()), "Failed to create toml tree");
    if (tree == nullptr)
    {
        return false;
    }
    installErrorDisplay<TreeError>(tree->pTreeParser->rec, report);
    const FollowStack treeFollows(tree->pTreeParser->rec);

    const bool isVisited = tree->document(tree.get(), visitor);
    report.thrown.pass();
    if (!isVisited)
    {
        VORN_LOG_ERROR("Failed to visit toml tree");
        return false;
    }
    const int errors =
        countSyntaxErrors({lexer->pLexer->rec, parser->pParser->rec, tree->pTreeParser->rec});
    if (errors != 0)
    {
        VORN_LOG_ERROR("Failed: input TOML has %d syntax errors", errors);
        return false;
    }
    return true;
}

// The path's characters.  Clients may come with a path type of their own making that
// starts, like ours, with a pointer to NUL-terminated characters.
const char* charactersOf(const FilePath& path)
{
    const char* text = nullptr;
    static_assert(sizeof(path) >= sizeof(text));
    std::memcpy(&text, static_cast<const void*>(&path), sizeof(text));
    return text;
}

} // namespace

ITomlTreeVisitor::~ITomlTreeVisitor() = default;

bool visitTomlTree(const std::string& text, ITomlTreeVisitor& visitor)
{
    Refusal refusal;
    return visitTomlTree(text, visitor, refusal);
}

bool visitTomlTree(std::string_view text, ITomlTreeVisitor& visitor, Refusal& refusal)
{
    const bool canBeStreamed = isStreamable(text);
    if (canBeStreamed)
    {
        const DirectReading reading = readDirectly(text, visitor);
        if (reading == DirectReading::accepted)
        {
            return true;
        }
        // Otherwise nothing has been called: the recognisers read the document from its start
        // and say what is wrong with it, if they can.
        refusal = reading == DirectReading::outOfMemory ? Refusal{Refusal::Reason::tooLarge}
                                                        : refusalOf(text);
        if (refusal)
        {
            return refuse(refusal, text.size());
        }
    }
    const auto input =
        owned(canBeStreamed ? openStream(text) : nullptr, "Failed to create toml string stream");
    return input != nullptr && visitTomlTree(input.get(), text, visitor, refusal);
}

bool visitTomlTree(const FilePath& path, ITomlTreeVisitor& visitor)
{
    const char* const name = charactersOf(path);
    if (!fileExists(name, true, AT_FDCWD))
    {
        VORN_LOG_ERROR("No such file: %s", name);
        return false;
    }
    const FileContent content(name);
    if (!content.isRead())
    {
        VORN_LOG_ERROR("Failed to open file; %s", name);
        return false;
    }
    Refusal refusal;
    return visitTomlTree(content.text(), visitor, refusal);
}

} // namespace vorn::parsers::toml
