#include <fcntl.h>

#include <algorithm>
#include <string>
#include <string_view>

#include <vorn/parsers/toml.h>
#include <vorn/utils/file.h>

#include "direct/direct_lines.h"
#include "direct/direct_reader.h"
#include "file_content.h"
#include "file_path.h"
#include "log.h"
#include "pipeline/buffer_hints.h"
#include "pipeline/deferred_cancellation.h"
#include "pipeline/document_lines.h"
#include "pipeline/document_text.h"
#include "pipeline/error_display.h"
#include "pipeline/follow_stack.h"
#include "pipeline/held_exception.h"
#include "pipeline/input_stream.h"
#include "pipeline/owned.h"
#include "pipeline/refusal.h"
#include "pipeline/runtime_text.h"
#include "pipeline/statement_nodes.h"
#include "pipeline/syntax_check.h"
#include "pipeline/token_window.h"
#include "pipeline/unreported_errors.h"
#include "reading.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml
{
namespace
{

// What the displays of a call's errors share.
struct Report
{
    DocumentText document;
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
    PrintableCharacter prepare(Report&) const
    {
        return PrintableCharacter(recogniser->state->exception);
    }
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
    ParserDisplay prepare(Report& report) const
    {
        return {TemporaryStrings(prepareDisplay(parser())),
                ShownIndex(static_cast<pANTLR3_COMMON_TOKEN>(recogniser->state->exception->token),
                           report.document)};
    }
    void operator()(Report& report) const
    {
        VORN_LOG_ERROR("Invalid TOML: parser failure at: %s", report.document.characters());
    }
};

struct TreeError : RecogniserError
{
    TemporaryStrings prepare(Report&) const
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
        Report& shared = *static_cast<Report*>(failed->state->userp);
        {
            const auto prepared = error.prepare(shared);
            runtimeDisplay(failed, tokenNames);
        }
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

// The walk over a document whose errors have been reported: node stream, tree parser.
bool visitTomlTree(const StatementNodes::Source& source, bool hasFailed, Report& report)
{
    const pANTLR3_BASE_TREE_ADAPTOR adaptor = source.parser->adaptor;
    auto* const list = static_cast<pANTLR3_BASE_TREE>(adaptor->nilNode(adaptor));
    const auto nodes = owned(antlr3CommonTreeNodeStreamNewTree(list, nodeBufferHint),
                             "Failed to create toml node stream");
    if (nodes == nullptr)
    {
        return false;
    }
    StatementNodes statements(nodes.get(), source, hasFailed);
    const auto tree = owned(TomlTreeNew(nodes.get()), "Failed to create toml tree");
    if (tree == nullptr)
    {
        return false;
    }
    const pANTLR3_BASE_RECOGNIZER walker = tree->pTreeParser->rec;
    statements.setWalker(walker);
    installErrorDisplay<TreeError>(walker, report);
    const FollowStack follows(walker);

    const bool isVisited = tree->document(tree.get(), source.visitor);
    report.thrown.pass();
    if (!isVisited)
    {
        VORN_LOG_ERROR("Failed to visit toml tree");
        return false;
    }
    const int errors =
        countSyntaxErrors({source.lines.lexer()->rec, source.parser->pParser->rec, walker});
    if (errors != 0)
    {
        VORN_LOG_ERROR("Failed: input TOML has %d syntax errors", errors);
        return false;
    }
    return true;
}

// The pipeline over a document, of which `input` is the stream: lexer, token stream, parser, and
// the walk.  They are freed in the reverse order.
bool visitTomlTree(ANTLR3_INPUT_STREAM* input, DirectLines& direct, ITomlTreeVisitor& visitor,
                   Refusal& refusal)
{
    const auto lexer = owned(TomlLexerNew(input), "Failed to create toml lexer");
    if (lexer == nullptr)
    {
        return false;
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
    DocumentLines lines(lexer->pLexer, direct);
    TokenWindow window(tokens.get(), lines);
    Report report = {{lines, window}, {}};
    installErrorDisplay<LexerError>(lexer->pLexer->rec, report);
    installErrorDisplay<ParserError>(parser->pParser->rec, report);

    if (!hasMemory(*parser, lines, window))
    {
        return refuse(refusal = {Refusal::Reason::tooLarge}, direct.size());
    }

    // All errors of the lexer come before those of the parser, and all calls of the visitor after
    // these.  Nothing is kept from one to the next: the document is lexed and parsed again.
    lines.reportErrors();
    const UnreportedErrors unreported(lexer->pLexer->rec);
    const Syntax syntax = checkSyntax(*parser, window);
    report.thrown.pass();
    if (syntax.levelsWithoutRoom > 0)
    {
        const std::size_t levels = std::max(syntax.levelsWithoutRoom, direct.levelsOfInvalid());
        return refuse(refusal = tooDeep(levels), direct.size());
    }
    const Scratch<char, 64> buffer(VisitorCalls::bytesFor(direct.longestText()));
    if (buffer.begin() == nullptr)
    {
        return refuse(refusal = {Refusal::Reason::tooLarge}, direct.size());
    }
    // Errors do not stop the walk: the visitor gets what the parser could make out.
    startOver(*parser, window);
    return visitTomlTree(
        {parser.get(), window, syntax.followOfLine, lines, visitor, buffer.begin()},
        syntax.hasFailed, report);
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
    constexpr const char* noStream = "Failed to create toml string stream";
    if (!isStreamable(text))
    {
        return owned<ANTLR3_INPUT_STREAM>(nullptr, noStream) != nullptr;
    }
    const DirectReading reading = readDirectly(text, visitor);
    if (reading == DirectReading::accepted)
    {
        return true;
    }
    // Otherwise nothing has been called: the recognisers read what is not valid, and say what is
    // wrong with it, if they can.
    DirectLines direct(text);
    refusal = reading == DirectReading::outOfMemory || !direct.hasMemory()
                  ? Refusal{Refusal::Reason::tooLarge}
                  : refusalOf(text.size(), direct.levelsOfInvalid());
    if (refusal)
    {
        return refuse(refusal, text.size());
    }
    const auto input = owned(openStream(text), noStream);
    return input != nullptr && visitTomlTree(input.get(), direct, visitor, refusal);
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
