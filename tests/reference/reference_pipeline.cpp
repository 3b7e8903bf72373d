#include "reference_pipeline.h"

#include <antlr3.h>

#include <vorn/utils/log.h>

#include "renamed_recognisers.h"

#include "grammar/tree_actions.h"
#include "pipeline/owned.h"

#include "TomlLexer.h"
#include "TomlParser.h"
#include "TomlTree.h"

// What the library logs, its source file included.
#define LOG_ERROR(...)                                                                             \
    logInternal("vorn_parsers", "src/toml.cpp", __func__, __LINE__, 3, 0, 0, __VA_ARGS__)

namespace reference
{
namespace
{

using vorn::parsers::toml::Owned;

// The first byte of a character above 0x7F, as UTF-8 was first defined: up to six bytes.
ANTLR3_UCHAR leadByte(ANTLR3_UCHAR c)
{
    return c < 0x800       ? 0xC0 | c >> 6
           : c < 0x10000   ? 0xE0 | c >> 12
           : c < 0x200000  ? 0xF0 | c >> 18
           : c < 0x4000000 ? 0xF8 | c >> 24
                           : 0xFC | c >> 30;
}

void installErrorDisplay(TomlLexer& lexer)
{
    static const auto defaultDisplay = lexer.pLexer->rec->displayRecognitionError;
    lexer.pLexer->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        // The display asks isprint(), whose domain ends at 255: beyond it comes the first byte
        // of the character.
        auto& character = recogniser->state->exception->c;
        const auto original = character;
        if (character != ANTLR3_CHARSTREAM_EOF && character > 0xFF)
        {
            character = leadByte(character);
        }
        defaultDisplay(recogniser, tokenNames);
        character = original;
        auto* const failed = static_cast<pANTLR3_LEXER>(recogniser->super);
        LOG_ERROR("Invalid TOML: lexer failure at: %s", characters(failed->getText(failed)));
    };
}

void installErrorDisplay(TomlParser& parser)
{
    static const auto defaultDisplay = parser.pParser->rec->displayRecognitionError;
    parser.pParser->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        defaultDisplay(recogniser, tokenNames);
        auto* const failed = static_cast<pANTLR3_PARSER>(recogniser->super);
        const pANTLR3_TOKEN_STREAM tokens = failed->getTokenStream(failed);
        LOG_ERROR("Invalid TOML: parser failure at: %s", characters(tokens->toString(tokens)));
    };
}

void installErrorDisplay(TomlTree& tree)
{
    static const auto defaultDisplay = tree.pTreeParser->rec->displayRecognitionError;
    tree.pTreeParser->rec->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_UINT8* tokenNames)
    {
        defaultDisplay(recogniser, tokenNames);
        LOG_ERROR("Invalid TOML: tree parser failure");
    };
}

ANTLR3_UINT32 syntaxErrors(pANTLR3_BASE_RECOGNIZER recogniser)
{
    return recogniser->getNumberOfSyntaxErrors(recogniser);
}

// The runtime takes what it only reads as mutable bytes.
pANTLR3_UINT8 bytes(const char* text)
{
    return reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
}

} // namespace

bool visitTomlTree(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    const Owned<ANTLR3_INPUT_STREAM> input(
        antlr3StringStreamNew(bytes(text.data()), ANTLR3_ENC_UTF8,
                              static_cast<ANTLR3_UINT32>(text.size()), bytes("toml")));
    const Owned<TomlLexer> lexer(TomlLexerNew(input.get()));
    installErrorDisplay(*lexer);
    const Owned<ANTLR3_COMMON_TOKEN_STREAM> tokens(
        antlr3CommonTokenStreamSourceNew(1025, lexer->pLexer->rec->state->tokSource));
    const Owned<TomlParser> parser(TomlParserNew(tokens.get()));
    installErrorDisplay(*parser);
    const pANTLR3_BASE_TREE document = parser->document(parser.get()).tree;
    const Owned<ANTLR3_COMMON_TREE_NODE_STREAM> nodes(
        antlr3CommonTreeNodeStreamNewTree(document, 90000));
    const Owned<TomlTree> tree(TomlTreeNew(nodes.get()));
    installErrorDisplay(*tree);

    if (!tree->document(tree.get(), visitor))
    {
        LOG_ERROR("Failed to visit toml tree");
        return false;
    }
    const ANTLR3_UINT32 errors = syntaxErrors(lexer->pLexer->rec) +
                                 syntaxErrors(parser->pParser->rec) +
                                 syntaxErrors(tree->pTreeParser->rec);
    if (errors != 0)
    {
        LOG_ERROR("Failed: input TOML has %d syntax errors", static_cast<int>(errors));
        return false;
    }
    return true;
}

} // namespace reference
