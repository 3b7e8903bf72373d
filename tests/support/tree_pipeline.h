// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <memory>
#include <string>

#include "support/tree_text.h"

#include "support/parser_pipeline.h"

namespace test
{

// A tree parser over the trees that the notation of tree_text.h describes.
class TreePipeline
{
public:
    explicit TreePipeline(const std::string& trees)
        : nodes_(antlr3CommonTreeNodeStreamNewTree(builder_.build(trees), 100)),
          tree_(TomlTreeNew(nodes_.get()))
    {
    }

    pTomlTree tree() const { return tree_.get(); }
    pANTLR3_COMMON_TREE_NODE_STREAM nodes() const { return nodes_.get(); }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return tree_->pTreeParser->rec; }

private:
    TreeBuilder builder_;
    std::unique_ptr<ANTLR3_COMMON_TREE_NODE_STREAM, FreeRecogniser> nodes_;
    std::unique_ptr<TomlTree, FreeRecogniser> tree_;
};

} // namespace test
