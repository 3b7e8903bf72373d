#include "pipeline_spy.h"

#include "pipeline/recognisers.h"

namespace test
{
namespace
{

PipelineSpy* spy = nullptr;

void record(const std::string& step)
{
    if (spy != nullptr)
    {
        spy->steps.push_back(step);
    }
}

// The entry `Member` of an object records `step` before it does its work.
template <auto Member, typename Object>
void watchRelease(Object* object, const char* step)
{
    static auto original = object->*Member;
    static const char* recorded = step;
    original = object->*Member;
    object->*Member = [](Object* released)
    {
        record(recorded);
        original(released);
    };
}

// Records an object's creation, unless it is to fail, and later its release by `Free`.
template <auto Free, typename Function, typename... Arguments>
auto create(const std::string& object, const char* release, Function function,
            Arguments... arguments)
{
    record("new " + object);
    if (spy != nullptr && spy->failing == object)
    {
        return decltype(function(arguments...)){nullptr};
    }
    const auto created = function(arguments...);
    watchRelease<Free>(created, release);
    return created;
}

enum Kind
{
    lexerKind,
    parserKind,
    treeKind
};

constexpr const char* nameOf[] = {"lexer", "parser", "tree"};

// The display of the first recogniser of its kind is the one that the driver keeps; the
// displays of later ones differ, so that a call of them shows.
template <Kind kind>
void watchDisplay(pANTLR3_BASE_RECOGNIZER recogniser)
{
    static const auto original = recogniser->displayRecognitionError;
    static bool first = true;
    recogniser->displayRecognitionError =
        first ? [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8* tokenNames)
    {
        record(std::string("display ") + nameOf[kind]);
        if (spy != nullptr && spy->onDisplay)
        {
            spy->onDisplay(nameOf[kind], failed, tokenNames);
        }
        original(failed, tokenNames);
    }
              : [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*)
    { record(std::string("display of a later ") + nameOf[kind]); };
    first = false;
}

template <Kind kind>
void watchCount(pANTLR3_BASE_RECOGNIZER recogniser)
{
    static auto original = recogniser->getNumberOfSyntaxErrors;
    original = recogniser->getNumberOfSyntaxErrors;
    recogniser->getNumberOfSyntaxErrors = [](pANTLR3_BASE_RECOGNIZER asked) -> ANTLR3_UINT32
    {
        record(std::string("count ") + nameOf[kind]);
        const bool claimed = spy != nullptr && !spy->claimedErrors.empty();
        return claimed ? spy->claimedErrors.at(kind) : original(asked);
    };
}

void watchReport(pANTLR3_BASE_RECOGNIZER lexer)
{
    static auto original = lexer->reportError;
    original = lexer->reportError;
    lexer->reportError = [](pANTLR3_BASE_RECOGNIZER failed)
    {
        original(failed);
        if (spy != nullptr && spy->onLexerReport)
        {
            spy->onLexerReport(failed);
        }
    };
}

void watchParse(pTomlParser parser)
{
    static auto original = parser->document;
    original = parser->document;
    parser->document = [](pTomlParser started)
    {
        record("parse");
        const TomlParser_document_return result = original(started);
        spy->created.document = result.tree;
        return result;
    };
}

void watchWalk(pTomlTree tree)
{
    static auto original = tree->document;
    original = tree->document;
    tree->document = [](pTomlTree started, TomlVisitor& visitor)
    {
        record("walk");
        spy->arguments.visitor = &visitor;
        return original(started, visitor);
    };
}

} // namespace

const Steps& creation()
{
    static const Steps steps = {"new input", "new lexer", "new tokens", "new parser",
                                "parse",     "new nodes", "new tree",   "walk"};
    return steps;
}

const Steps& release()
{
    static const Steps steps = {"free tree",   "free nodes", "free parser",
                                "free tokens", "free lexer", "close input"};
    return steps;
}

PipelineSpy::PipelineSpy()
{
    spy = this;
}

PipelineSpy::~PipelineSpy()
{
    spy = nullptr;
}

} // namespace test

// The linker gives these names: callers reach __wrap_f, which reaches f by __real_f.
extern "C"
{
    decltype(antlr3StringStreamNew) __real_antlr3StringStreamNew;
    decltype(TomlLexerNew) __real_TomlLexerNew;
    decltype(antlr3CommonTokenStreamSourceNew) __real_antlr3CommonTokenStreamSourceNew;
    decltype(TomlParserNew) __real_TomlParserNew;
    decltype(antlr3CommonTreeNodeStreamNewTree) __real_antlr3CommonTreeNodeStreamNewTree;
    decltype(TomlTreeNew) __real_TomlTreeNew;

    pANTLR3_INPUT_STREAM __wrap_antlr3StringStreamNew(pANTLR3_UINT8 data, ANTLR3_UINT32 encoding,
                                                      ANTLR3_UINT32 size, pANTLR3_UINT8 name)
    {
        test::CreationArguments& arguments = test::spy->arguments;
        arguments.data = data;
        arguments.encoding = encoding;
        arguments.size = size;
        arguments.name = reinterpret_cast<const char*>(name);
        auto* const input = test::create<&ANTLR3_INPUT_STREAM::close>(
            "input", "close input", __real_antlr3StringStreamNew, data, encoding, size, name);
        test::spy->created.input = input;
        return input;
    }

    pTomlLexer __wrap_TomlLexerNew(pANTLR3_INPUT_STREAM input)
    {
        test::spy->arguments.lexerInput = input;
        const pTomlLexer lexer =
            test::create<&TomlLexer::free>("lexer", "free lexer", __real_TomlLexerNew, input);
        if (lexer != nullptr)
        {
            const pANTLR3_BASE_RECOGNIZER recogniser = lexer->pLexer->rec;
            test::spy->created.tokenSource = recogniser->state->tokSource;
            test::watchDisplay<test::lexerKind>(recogniser);
            test::watchCount<test::lexerKind>(recogniser);
            test::watchReport(recogniser);
        }
        return lexer;
    }

    pANTLR3_COMMON_TOKEN_STREAM __wrap_antlr3CommonTokenStreamSourceNew(ANTLR3_UINT32 hint,
                                                                        pANTLR3_TOKEN_SOURCE source)
    {
        test::spy->arguments.tokensHint = hint;
        test::spy->arguments.tokenSource = source;
        auto* const tokens = test::create<&ANTLR3_COMMON_TOKEN_STREAM::free>(
            "tokens", "free tokens", __real_antlr3CommonTokenStreamSourceNew, hint, source);
        test::spy->created.tokens = tokens;
        return tokens;
    }

    pTomlParser __wrap_TomlParserNew(pANTLR3_COMMON_TOKEN_STREAM tokens)
    {
        test::spy->arguments.parserTokens = tokens;
        const pTomlParser parser =
            test::create<&TomlParser::free>("parser", "free parser", __real_TomlParserNew, tokens);
        if (parser != nullptr)
        {
            test::watchDisplay<test::parserKind>(parser->pParser->rec);
            test::watchCount<test::parserKind>(parser->pParser->rec);
            test::watchParse(parser);
        }
        return parser;
    }

    pANTLR3_COMMON_TREE_NODE_STREAM __wrap_antlr3CommonTreeNodeStreamNewTree(pANTLR3_BASE_TREE tree,
                                                                             ANTLR3_UINT32 hint)
    {
        test::spy->arguments.nodesTree = tree;
        test::spy->arguments.nodesChildren = tree->getChildCount(tree);
        test::spy->arguments.nodesHint = hint;
        auto* const nodes = test::create<&ANTLR3_COMMON_TREE_NODE_STREAM::free>(
            "nodes", "free nodes", __real_antlr3CommonTreeNodeStreamNewTree, tree, hint);
        test::spy->created.nodes = nodes;
        return nodes;
    }

    pTomlTree __wrap_TomlTreeNew(pANTLR3_COMMON_TREE_NODE_STREAM nodes)
    {
        test::spy->arguments.treeNodes = nodes;
        const pTomlTree tree =
            test::create<&TomlTree::free>("tree", "free tree", __real_TomlTreeNew, nodes);
        if (tree != nullptr)
        {
            test::watchDisplay<test::treeKind>(tree->pTreeParser->rec);
            test::watchCount<test::treeKind>(tree->pTreeParser->rec);
            test::watchWalk(tree);
        }
        return tree;
    }
}
