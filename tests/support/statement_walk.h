// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "direct/visitor_calls.h"
#include "pipeline/error_display.h"
#include "pipeline/statement_nodes.h"
#include "pipeline/syntax_check.h"

#include "support/recognition_errors.h"

#include "support/window_pipeline.h"

namespace test
{

using Nodes = std::unique_ptr<ANTLR3_COMMON_TREE_NODE_STREAM, FreeRecogniser>;
using Walker = std::unique_ptr<TomlTree, FreeRecogniser>;

// Adds each error's kind to `kinds`, after the runtime has displayed it.
inline void showErrors(pANTLR3_BASE_RECOGNIZER walker, ErrorKinds& kinds)
{
    static const auto runtimeDisplay = walker->displayRecognitionError;
    walker->state->userp = &kinds;
    walker->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8* tokenNames)
    {
        {
            const vorn::parsers::toml::TemporaryStrings strings(vorn::parsers::toml::prepareDisplay(
                static_cast<pANTLR3_TREE_PARSER>(failed->super)));
            runtimeDisplay(failed, tokenNames);
        }
        static_cast<ErrorKinds*>(failed->state->userp)->push_back(errorKind(failed));
        vorn::parsers::toml::forgetEarlierErrors(failed);
    };
}

inline void ignoreErrors(pANTLR3_BASE_RECOGNIZER recogniser)
{
    recogniser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    { vorn::parsers::toml::forgetEarlierErrors(failed); };
}

// A tree parser over a text that must outlive it, which gets the nodes statement by statement.
class StatementWalk
{
public:
    StatementWalk(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
        : pipeline_(text), syntax_(checked()),
          buffer_(vorn::parsers::toml::VisitorCalls::bytesFor(pipeline_.lines().longestText())),
          source_{pipeline_.parser(),
                  pipeline_.window(),
                  syntax_.followOfLine,
                  pipeline_.lines(),
                  visitor,
                  buffer_.data()},
          nodes_(antlr3CommonTreeNodeStreamNewTree(list(), 100)),
          statements_(nodes_.get(), source_, syntax_.hasFailed), walker_(TomlTreeNew(nodes_.get())),
          visitor_(visitor)
    {
        statements_.setWalker(recogniser());
    }

    bool walk() { return walker_->document(walker_.get(), visitor_); }

    bool hasFailed() const { return syntax_.hasFailed; }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return walker_->pTreeParser->rec; }
    pANTLR3_COMMON_TREE_NODE_STREAM nodes() const { return nodes_.get(); }
    pANTLR3_INT_STREAM stream() const { return nodes_->tnstream->istream; }
    WindowPipeline& pipeline() { return pipeline_; }

private:
    vorn::parsers::toml::Syntax checked()
    {
        ignoreErrors(pipeline_.lexer().recogniser());
        ignoreErrors(pipeline_.recogniser());
        pipeline_.lines().reportErrors();
        const auto syntax =
            vorn::parsers::toml::checkSyntax(*pipeline_.parser(), pipeline_.window());
        vorn::parsers::toml::startOver(*pipeline_.parser(), pipeline_.window());
        return syntax;
    }
    pANTLR3_BASE_TREE list() const
    {
        const pANTLR3_BASE_TREE_ADAPTOR adaptor = pipeline_.parser()->adaptor;
        return static_cast<pANTLR3_BASE_TREE>(adaptor->nilNode(adaptor));
    }

    WindowPipeline pipeline_;
    vorn::parsers::toml::Syntax syntax_;
    std::vector<char> buffer_;
    const vorn::parsers::toml::StatementNodes::Source source_;
    Nodes nodes_;
    vorn::parsers::toml::StatementNodes statements_;
    Walker walker_;
    vorn::parsers::toml::ITomlTreeVisitor& visitor_;
};

// A tree parser over the whole tree of a text, which must outlive it.
class TreeWalkOf
{
public:
    explicit TreeWalkOf(const std::string& text)
        : pipeline_(text), nodes_(antlr3CommonTreeNodeStreamNewTree(tree(), 100)),
          walker_(TomlTreeNew(nodes_.get()))
    {
    }

    bool walk(vorn::parsers::toml::ITomlTreeVisitor& visitor)
    {
        return walker_->document(walker_.get(), visitor);
    }

    pANTLR3_BASE_RECOGNIZER recogniser() const { return walker_->pTreeParser->rec; }
    pANTLR3_COMMON_TREE_NODE_STREAM nodes() const { return nodes_.get(); }
    pANTLR3_INT_STREAM stream() const { return nodes_->tnstream->istream; }

private:
    pANTLR3_BASE_TREE tree() const
    {
        ignoreErrors(pipeline_.lexer().recogniser());
        ignoreErrors(pipeline_.recogniser());
        return pipeline_.parser()->document(pipeline_.parser()).tree;
    }

    ParserPipeline pipeline_;
    Nodes nodes_;
    Walker walker_;
};

} // namespace test
