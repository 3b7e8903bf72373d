#include "follow_stack.h"

#include <algorithm>

#include "stack_room.h"

namespace vorn::parsers::toml
{
namespace
{

// The thread's stack is not looked at for fewer rules; these take some ten kilobytes.
constexpr ANTLR3_UINT32 safeRules = 30;

// An array takes two rules, an inline table three.
constexpr unsigned maxRulesOfLevel = 3;

// What is to be left of the stack for what the innermost rules call: above all the displays
// of errors, with the logger, which use half of it.  The walk over the tree is less deep
// than the parsing and leaves more, for the visitor.
constexpr std::size_t neededRoom = std::size_t{20} * 1024;

} // namespace

FollowStack::FollowStack(pANTLR3_BASE_RECOGNIZER recogniser) noexcept
    : FollowStack(recogniser, nullptr, nullptr)
{
}

FollowStack::FollowStack(pANTLR3_PARSER parser, LineStarts* lines) noexcept
    : FollowStack(parser->rec, parser->tstream->istream, lines)
{
}

FollowStack::FollowStack(pANTLR3_BASE_RECOGNIZER recogniser, pANTLR3_INT_STREAM tokens,
                         LineStarts* lines) noexcept
    : ANTLR3_STACK(*recogniser->state->following), recogniser_(recogniser),
      runtime_(recogniser->state->following),
      runtimeRecoverySet_(recogniser->computeErrorRecoverySet),
      runtimeRuleFollow_(recogniser->computeCSRuleFollow), tokens_(tokens), lines_(lines)
{
    push = pushSet;
    pop = popSet;
    recogniser->state->following = this;
    recogniser->computeErrorRecoverySet = recoverySet;
    recogniser->computeCSRuleFollow = combined;
}

FollowStack::~FollowStack()
{
    recogniser_->state->following = runtime_;
    recogniser_->computeErrorRecoverySet = runtimeRecoverySet_;
    recogniser_->computeCSRuleFollow = runtimeRuleFollow_;
}

const FollowStack& FollowStack::of(pANTLR3_BASE_RECOGNIZER recogniser) noexcept
{
    return static_cast<const FollowStack&>(*recogniser->state->following);
}

unsigned FollowStack::levelsWithoutRoom() const noexcept
{
    return rulesWithoutRoom_ / maxRulesOfLevel;
}

ANTLR3_BOOLEAN FollowStack::pushSet(pANTLR3_STACK stack, void* set, void (*release)(void*))
{
    auto& follows = static_cast<FollowStack&>(*stack);
    auto* const follow = static_cast<pANTLR3_BITSET_LIST>(set);
    // The first rule that the document's rule calls is that of a line.
    if (follows.vector->count == 0 && follows.lines_ != nullptr)
    {
        follows.lines_->startLine(follow);
    }
    follows.add(*follow);
    follows.checkDepth();
    return follows.runtime_->push(stack, set, release);
}

void* FollowStack::popSet(pANTLR3_STACK stack)
{
    auto& follows = static_cast<FollowStack&>(*stack);
    follows.remove();
    return follows.runtime_->pop(stack);
}

pANTLR3_BITSET FollowStack::recoverySet(pANTLR3_BASE_RECOGNIZER recogniser)
{
    // Where nothing follows, the parser goes over all tokens that are left.
    const FollowStack& follows = of(recogniser);
    if (follows.vector->count == 0 && follows.tokens_ != nullptr)
    {
        follows.endTokens();
    }
    return combined(recogniser);
}

pANTLR3_BITSET FollowStack::combined(pANTLR3_BASE_RECOGNIZER recogniser)
{
    const FollowStack& follows = of(recogniser);
    Types types = follows.types_[follows.last_];
    ANTLR3_BITSET_LIST list = {types.data(), static_cast<ANTLR3_UINT32>(types.size())};
    return antlr3BitsetLoad(&list);
}

void FollowStack::add(const ANTLR3_BITSET_LIST& set) noexcept
{
    Types types = types_[last_];
    for (std::size_t word = 0; word < std::min<std::size_t>(set.length, types.size()); ++word)
    {
        types[word] |= set.bits[word];
    }
    if (types != types_[last_])
    {
        ++last_;
        types_[last_] = types;
        levels_[last_] = vector->count + 1;
    }
}

void FollowStack::remove() noexcept
{
    if (last_ != 0 && levels_[last_] == vector->count)
    {
        --last_;
    }
}

void FollowStack::checkDepth() noexcept
{
    if (tokens_ == nullptr || vector->count < safeRules || rulesWithoutRoom_ != 0)
    {
        return;
    }
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    if (lowest_ == 0)
    {
        lowest_ = here - stackRoom() + neededRoom;
    }
    if (here < lowest_)
    {
        rulesWithoutRoom_ = vector->count;
        endTokens();
    }
}

void FollowStack::endTokens() const noexcept
{
    tokens_->seek(tokens_, static_cast<ANTLR3_MARKER>(tokens_->size(tokens_)));
}

} // namespace vorn::parsers::toml
