#pragma once

#include <antlr3.h>

#include <type_traits>

namespace vorn::parsers::toml
{

// Has a parser make no trees while this lives: all nodes are the same.  It reports the same errors,
// since it does not look at its trees.
class NoTree
{
public:
    explicit NoTree(pANTLR3_BASE_TREE_ADAPTOR adaptor) noexcept;
    NoTree(const NoTree&) = delete;
    NoTree& operator=(const NoTree&) = delete;
    ~NoTree() { *adaptor_ = operations_; }

    // Whether a rule that has returned this has failed.
    static bool isOfFailure(pANTLR3_BASE_TREE tree) noexcept;

private:
    pANTLR3_BASE_TREE_ADAPTOR adaptor_;
    const std::remove_pointer_t<pANTLR3_BASE_TREE_ADAPTOR> operations_;
};

} // namespace vorn::parsers::toml
