#pragma once

#include <antlr3.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "grammar/type_count.h"

namespace vorn::parsers::toml
{

// Is told where a parser starts to read a line, and which tokens may follow that.
class LineStarts
{
public:
    virtual void startLine(pANTLR3_BITSET_LIST follow) = 0;

protected:
    ~LineStarts() = default;
};

// Makes a recogniser's recovery from errors cheap, however deeply its rules are nested.
//
// The runtime keeps a stack with the set of the tokens that may follow each rule that is
// running, and for every error it combines all of these sets anew.  This stack, in the
// place of the runtime's, has the combined set at any time; the recovery is the same.
//
// A parser's stack also ends the parsing before the thread's own stack is used up: then
// the parser finds its tokens to be at their end, and comes back.
//
// And it tells where the parser is between two lines.
class FollowStack : private ANTLR3_STACK
{
public:
    // Replaces the stack of a recogniser that has not been used, while this lives.
    explicit FollowStack(pANTLR3_BASE_RECOGNIZER recogniser) noexcept;
    explicit FollowStack(pANTLR3_PARSER parser, LineStarts* lines = nullptr) noexcept;
    FollowStack(const FollowStack&) = delete;
    FollowStack& operator=(const FollowStack&) = delete;
    ~FollowStack();

    static const FollowStack& of(pANTLR3_BASE_RECOGNIZER recogniser) noexcept;

    // Where the parsing was ended: at how many levels of arrays and inline tables, at
    // least; 0 if it was not.
    unsigned levelsWithoutRoom() const noexcept;

private:
    // The types of Toml.g fit two words.
    using Types = std::array<ANTLR3_BITWORD, 2>;

    FollowStack(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_INT_STREAM tokens,
                LineStarts* lines) noexcept;

    static ANTLR3_BOOLEAN pushSet(pANTLR3_STACK stack, void* set, void (*release)(void*));
    static void* popSet(pANTLR3_STACK stack);
    static pANTLR3_BITSET recoverySet(pANTLR3_BASE_RECOGNIZER recogniser);
    static pANTLR3_BITSET combined(pANTLR3_BASE_RECOGNIZER recogniser);

    void add(const ANTLR3_BITSET_LIST& set) noexcept;
    void remove() noexcept;
    void checkDepth() noexcept;
    void endTokens() const noexcept;

    pANTLR3_BASE_RECOGNIZER recogniser_;
    pANTLR3_STACK runtime_;
    decltype(ANTLR3_BASE_RECOGNIZER::computeErrorRecoverySet) runtimeRecoverySet_;
    decltype(ANTLR3_BASE_RECOGNIZER::computeCSRuleFollow) runtimeRuleFollow_;

    // The union of the sets changes at few levels: where one has a type that none below it
    // has.  The levels are counted from 1; at level 0 there is no type.
    std::array<Types, typeCount + 1> types_ = {};
    std::array<ANTLR3_UINT32, typeCount + 1> levels_ = {};
    std::size_t last_ = 0;

    pANTLR3_INT_STREAM tokens_;          // null: the depth has no limit
    LineStarts* lines_;                  // null: nobody is told
    std::uintptr_t lowest_ = 0;          // the address that the stack may reach; 0: not known yet
    ANTLR3_UINT32 rulesWithoutRoom_ = 0; // the rules that were running when it was reached
};

} // namespace vorn::parsers::toml
