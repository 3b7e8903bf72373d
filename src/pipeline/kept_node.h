#pragma once

#include <antlr3.h>

#include "runtime_text.h"

namespace vorn::parsers::toml
{

// Takes the place of the node that the last error of a walk is about, when that is freed.  The
// runtime may report the error again: where it cannot repair a mismatch it takes an exception that
// is there for a new one.
class KeptNode : private ANTLR3_BASE_TREE
{
public:
    explicit KeptNode(pANTLR3_STRING_FACTORY strings) noexcept;
    KeptNode(const KeptNode&) = delete;
    KeptNode& operator=(const KeptNode&) = delete;
    ~KeptNode() = default;

    // The nodes that this one has gone over are going to be freed.
    void replaceIn(pANTLR3_BASE_RECOGNIZER walker) noexcept;

private:
    static KeptNode& of(pANTLR3_BASE_TREE node) noexcept { return static_cast<KeptNode&>(*node); }

    OwnedText text_;
    ANTLR3_UINT32 column_ = 0;
};

} // namespace vorn::parsers::toml
