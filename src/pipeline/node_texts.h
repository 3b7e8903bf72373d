#pragma once

#include <antlr3.h>

#include "runtime_text.h"

namespace vorn::parsers::toml
{

// Where the tree parser gets the texts of nodes from.  The runtime makes strings for each
// text, which live as long as the input; this has one string, for one text at a time.
class NodeTexts
{
public:
    // Lives at least as long as the stream.
    explicit NodeTexts(pANTLR3_COMMON_TREE_NODE_STREAM nodes) noexcept;
    NodeTexts(const NodeTexts&) = delete;
    NodeTexts& operator=(const NodeTexts&) = delete;
    ~NodeTexts() = default;

private:
    using ToString = decltype(ANTLR3_TREE_NODE_STREAM::toStringSS);

    static pANTLR3_STRING toString(pANTLR3_TREE_NODE_STREAM nodes, pANTLR3_BASE_TREE first,
                                   pANTLR3_BASE_TREE last);
    bool set(std::string_view text) noexcept;

    ToString runtimeToString_;
    ANTLR3_STRING string_ = {};
    OwnedText characters_;
};

} // namespace vorn::parsers::toml
