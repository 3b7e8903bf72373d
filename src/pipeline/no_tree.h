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
    bool isOfFailure(pANTLR3_BASE_TREE tree) const noexcept { return tree == error_; }

private:
    using Adaptor = pANTLR3_BASE_TREE_ADAPTOR;

    static const NoTree& of(Adaptor adaptor) noexcept;
    static void* anyNode(Adaptor adaptor) noexcept { return of(adaptor).any_; }

    Adaptor adaptor_;
    const std::remove_pointer_t<Adaptor> operations_;
    void* any_;
    void* error_;
};

} // namespace vorn::parsers::toml
