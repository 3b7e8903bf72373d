#include <fcntl.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>

#include <vorn/parsers/toml.h>
#include <vorn/utils/file.h>

#include "direct/direct_reader.h"
#include "file_content.h"
#include "log.h"
#include "pipeline/cleanup_guard.h"
#include "pipeline/document_depth.h"
#include "pipeline/error_display.h"
#include "pipeline/follow_stack.h"
#include "pipeline/held_exception.h"
#include "pipeline/memory_need.h"
#include "pipeline/node_texts.h"
#include "pipeline/runtime_text.h"
#include "pipeline/stack_room.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml
{
namespace
{

// Usual sizes of the runtime's buffers; they grow as needed.
constexpr ANTLR3_UINT32 tokenBufferHint = 1025;
constexpr ANTLR3_UINT32 nodeBufferHint = 90000;

// What the displays of a call's errors share.
struct Report
{
    OwnedText tokens;     // the text of the parser's tokens, the same for every error
    HeldException thrown; // by the logger
};

Report& reportOf(pANTLR3_BASE_RECOGNIZER recogniser) noexcept
{
    return *static_cast<Report*>(recogniser->state->userp);
}

void installErrorDisplay(pTomlLexer lexer, Report& report)
{
    static const auto defaultDisplay = lexer->pLexer->rec->displayRecognitionError;
    lexer->pLexer->rec->state->userp = &report;
    lexer->pLexer->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        {
            const PrintableCharacter printable(recogniser->state->exception);
            defaultDisplay(recogniser, tokenNames);
        }
        const OwnedText text = matchedText(static_cast<pANTLR3_LEXER>(recogniser->super));
        reportOf(recogniser)
            .thrown.guard([&text]
                          { VORN_LOG_ERROR("Invalid TOML: lexer failure at: %s", orEmpty(text)); });
        forgetEarlierErrors(recogniser);
    };
}

void installErrorDisplay(pTomlParser parser, Report& report)
{
    static const auto defaultDisplay = parser->pParser->rec->displayRecognitionError;
    parser->pParser->rec->state->userp = &report;
    parser->pParser->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        if (FollowStack::of(recogniser).levelsWithoutRoom() > 0)
        {
            return;
        }
        auto* const failed = static_cast<pANTLR3_PARSER>(recogniser->super);
        {
            const TemporaryStrings temporary(prepareDisplay(failed));
            defaultDisplay(recogniser, tokenNames);
        }
        auto& [tokens, thrown] = reportOf(recogniser);
        if (tokens == nullptr)
        {
            tokens = textOf(failed->getTokenStream(failed));
        }
        thrown.guard([text = orEmpty(tokens)]
                     { VORN_LOG_ERROR("Invalid TOML: parser failure at: %s", text); });
        forgetEarlierErrors(recogniser);
    };
}

void installErrorDisplay(pTomlTree tree, Report& report)
{
    static const auto defaultDisplay = tree->pTreeParser->rec->displayRecognitionError;
    tree->pTreeParser->rec->state->userp = &report;
    tree->pTreeParser->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        {
            const TemporaryStrings temporary(
                prepareDisplay(static_cast<pANTLR3_TREE_PARSER>(recogniser->super)));
            defaultDisplay(recogniser, tokenNames);
        }
        reportOf(recogniser)
            .thrown.guard([] { VORN_LOG_ERROR("Invalid TOML: tree parser failure"); });
        forgetEarlierErrors(recogniser);
    };
}

std::string_view textOf(const ANTLR3_INPUT_STREAM* input)
{
    return {static_cast<const char*>(input->data), input->sizeBuf};
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

// The pipeline: lexer, token stream, parser, node stream, tree parser.  Each object
// is freed by the guard that follows it, the last one first.
// NOLINTNEXTLINE(readability-function-size): it has a stage behind the other.
bool visitTomlTree(ANTLR3_INPUT_STREAM* input, ITomlTreeVisitor& visitor)
{
    const pTomlLexer lexer = TomlLexerNew(input);
    if (lexer == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml lexer");
        return false;
    }
    const CleanupGuard lexerGuard([lexer] { lexer->free(lexer); });
    Report report;
    installErrorDisplay(lexer, report);
    const std::size_t size = textOf(input).size();
    if (!isMemoryLeft(memoryForReading(size, survey(lexer->pLexer))))
    {
        VORN_LOG_ERROR("Failed: input TOML is too large to diagnose (%zu bytes)", size);
        return false;
    }

    const pANTLR3_COMMON_TOKEN_STREAM tokens =
        antlr3CommonTokenStreamSourceNew(tokenBufferHint, lexer->pLexer->rec->state->tokSource);
    if (tokens == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml token stream");
        return false;
    }
    const CleanupGuard tokensGuard([tokens] { tokens->free(tokens); });

    const pTomlParser parser = TomlParserNew(tokens);
    if (parser == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml parser");
        return false;
    }
    const CleanupGuard parserGuard([parser] { parser->free(parser); });
    installErrorDisplay(parser, report);
    const FollowStack parserFollows(parser->pParser);

    // Errors do not stop the walk: the visitor gets what the parser could make out.
    const pANTLR3_BASE_TREE document = parser->document(parser).tree;
    report.thrown.pass();
    if (const unsigned levels = parserFollows.levelsWithoutRoom(); levels > 0)
    {
        const unsigned most = std::max(levels, documentDepth(textOf(input)));
        VORN_LOG_ERROR("Failed: input TOML is nested too deeply (%u levels)", most);
        return false;
    }
    const pANTLR3_COMMON_TREE_NODE_STREAM nodes =
        antlr3CommonTreeNodeStreamNewTree(document, nodeBufferHint);
    if (nodes == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml node stream");
        return false;
    }
    const CleanupGuard nodesGuard([nodes] { nodes->free(nodes); });
    const NodeTexts texts(nodes);

    const pTomlTree tree = TomlTreeNew(nodes);
    if (tree == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml tree");
        return false;
    }
    const CleanupGuard treeGuard([tree] { tree->free(tree); });
    installErrorDisplay(tree, report);
    const FollowStack treeFollows(tree->pTreeParser->rec);

    const bool isVisited = tree->document(tree, visitor);
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

// The runtime takes its input and names as mutable bytes, but only reads them.
pANTLR3_UINT8 runtimeBytes(const char* text)
{
    return reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
}

// Whether the runtime can count the text's bytes, which it does in 32 bits.
bool isStreamable(const std::string& text)
{
    return std::uint64_t{text.size()} <= std::numeric_limits<ANTLR3_UINT32>::max();
}

// A stream over the bytes of `text`, not a copy; null if it cannot be made.
pANTLR3_INPUT_STREAM openStream(const std::string& text)
{
    if (!isStreamable(text))
    {
        return nullptr;
    }
    return antlr3StringStreamNew(runtimeBytes(text.data()), ANTLR3_ENC_UTF8,
                                 static_cast<ANTLR3_UINT32>(text.size()), runtimeBytes("toml"));
}

// The path's characters.  Clients may come with a path type of their own making that
// begins, like ours, with a pointer to NUL-terminated characters.
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
    // Nothing has been called when a document is refused: then the recognisers read it
    // from its start and say what is wrong with it, if they can.
    if (isStreamable(text))
    {
        const DirectReading reading = readDirectly(text, visitor);
        if (reading == DirectReading::accepted)
        {
            return true;
        }
        if (reading == DirectReading::outOfMemory || !isMemoryLeft(memoryForSurvey(text.size())))
        {
            VORN_LOG_ERROR("Failed: input TOML is too large to diagnose (%zu bytes)", text.size());
            return false;
        }
        if (const unsigned levels = documentDepth(text); !mayHaveRoomForLevels(levels))
        {
            VORN_LOG_ERROR("Failed: input TOML is nested too deeply (%u levels)", levels);
            return false;
        }
    }
    const pANTLR3_INPUT_STREAM input = openStream(text);
    if (input == nullptr)
    {
        VORN_LOG_ERROR("Failed to create toml string stream");
        return false;
    }
    const CleanupGuard inputGuard([input] { input->close(input); });
    return visitTomlTree(input, visitor);
}

bool visitTomlTree(const FilePath& path, ITomlTreeVisitor& visitor)
{
    const char* const name = charactersOf(path);
    if (!fileExists(name, true, AT_FDCWD))
    {
        VORN_LOG_ERROR("No such file: %s", name);
        return false;
    }
    const std::optional<std::string> content = fileContent(name);
    if (!content)
    {
        VORN_LOG_ERROR("Failed to open file; %s", name);
        return false;
    }
    return visitTomlTree(*content, visitor);
}

} // namespace vorn::parsers::toml
