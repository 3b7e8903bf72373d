// The stack of what may follow the rules that are running.
#include <gtest/gtest.h>

#include "pipeline/follow_stack.h"

#include <array>
#include <memory>
#include <vector>

#include "grammar/type_count.h"

#include "support/text_generator.h"
#include "support/types_of_set.h"

using test::Types;
using test::typesOf;
using vorn::parsers::toml::FollowStack;
using vorn::parsers::toml::typeCount;

namespace
{

// One of the runtime, without rules.
class Recogniser
{
public:
    Recogniser() : parser_(antlr3ParserNew(100, nullptr))
    {
        get()->reset(get()); // makes its stack
    }

    pANTLR3_BASE_RECOGNIZER get() const { return parser_->rec; }
    pANTLR3_BASE_RECOGNIZER operator->() const { return get(); }

private:
    struct Free
    {
        void operator()(pANTLR3_PARSER parser) const { parser->free(parser); }
    };

    std::unique_ptr<ANTLR3_PARSER, Free> parser_;
};

// The sets that a test pushes: the static lists of a recogniser.
class SomeSets
{
public:
    static constexpr std::size_t count = 40;

    // Few types each, so that unions grow slowly; none beyond those of the grammar.
    explicit SomeSets(test::TextGenerator& generator)
    {
        for (std::size_t index = 0; index < count; ++index)
        {
            for (std::size_t types = generator.below(4); types > 0; --types)
            {
                const std::size_t type = generator.below(typeCount);
                words_[index][type / 64] |= ANTLR3_BITWORD{1} << type % 64;
            }
            lists_[index] = {words_[index].data(), words_[index][1] == 0 ? 1u : 2u};
        }
    }

    pANTLR3_BITSET_LIST operator[](std::size_t index) { return &lists_[index]; }

private:
    std::array<std::array<ANTLR3_BITWORD, 2>, count> words_ = {};
    std::array<ANTLR3_BITSET_LIST, count> lists_ = {};
};

// The runtime combines the sets of any stack.
void expectCombined(const Recogniser& recogniser)
{
    const Types expected = typesOf(recogniser->combineFollows(recogniser.get(), ANTLR3_FALSE));
    EXPECT_EQ(typesOf(recogniser->computeErrorRecoverySet(recogniser.get())), expected);
    EXPECT_EQ(typesOf(recogniser->computeCSRuleFollow(recogniser.get())), expected);
}

} // namespace

TEST(FollowStack, hasTheUnionOfItsSetsAtAnyTime)
{
    test::TextGenerator generator;
    for (int round = 0; round < 40; ++round)
    {
        SCOPED_TRACE(round);
        SomeSets sets(generator);
        const Recogniser recogniser;
        const FollowStack follows(recogniser.get());
        const pANTLR3_STACK following = recogniser->state->following;
        std::vector<void*> pushed;
        for (int step = 0; step < 150; ++step)
        {
            // It grows first, and shrinks later.
            const bool grows = pushed.empty() || generator.below(100) < (step < 100 ? 60u : 30u);
            if (grows)
            {
                pushed.push_back(sets[generator.below(SomeSets::count)]);
                EXPECT_NE(following->push(following, pushed.back(), nullptr), ANTLR3_FALSE);
            }
            else
            {
                following->pop(following);
                pushed.pop_back();
            }
            ASSERT_EQ(following->size(following), pushed.size());
            EXPECT_EQ(following->top, pushed.empty() ? nullptr : pushed.back());
            expectCombined(recogniser);
        }
    }
}

TEST(FollowStack, hasRoomForEachTypeAlone)
{
    std::array<std::array<ANTLR3_BITWORD, 2>, typeCount> words = {};
    std::array<ANTLR3_BITSET_LIST, typeCount> lists = {};
    const Recogniser recogniser;
    const FollowStack follows(recogniser.get());
    const pANTLR3_STACK following = recogniser->state->following;
    const auto countOfTypes = [&recogniser]
    { return typesOf(recogniser->computeErrorRecoverySet(recogniser.get())).size(); };
    for (std::size_t type = 0; type < words.size(); ++type)
    {
        words[type][type / 64] = ANTLR3_BITWORD{1} << type % 64;
        lists[type] = {words[type].data(), 2};
        following->push(following, &lists[type], nullptr);
        EXPECT_EQ(countOfTypes(), type + 1);
    }
    for (std::size_t type = words.size(); type > 0; --type)
    {
        expectCombined(recogniser);
        following->pop(following);
        EXPECT_EQ(countOfTypes(), type - 1);
    }
}

TEST(FollowStack, doesNotGoOverItsSetsForAnAnswer)
{
    static ANTLR3_UINT32 looks = 0;
    test::TextGenerator generator;
    SomeSets sets(generator);
    const Recogniser recogniser;
    const FollowStack follows(recogniser.get());
    const pANTLR3_STACK following = recogniser->state->following;
    for (std::size_t index = 0; index < SomeSets::count; ++index)
    {
        following->push(following, sets[index], nullptr);
    }
    following->get = [](pANTLR3_STACK stack, ANTLR3_INTKEY key)
    {
        ++looks;
        return stack->vector->get(stack->vector, static_cast<ANTLR3_UINT32>(key));
    };
    looks = 0;
    const Types types = typesOf(recogniser->computeErrorRecoverySet(recogniser.get()));
    EXPECT_EQ(typesOf(recogniser->computeCSRuleFollow(recogniser.get())), types);
    EXPECT_EQ(looks, 0u);
    // The runtime does.
    EXPECT_EQ(typesOf(recogniser->combineFollows(recogniser.get(), ANTLR3_FALSE)), types);
    EXPECT_EQ(looks, SomeSets::count);
}

TEST(FollowStack, answersWithASetOfItsOwn)
{
    test::TextGenerator generator;
    SomeSets sets(generator);
    const Recogniser recogniser;
    const FollowStack follows(recogniser.get());
    const pANTLR3_STACK following = recogniser->state->following;
    for (std::size_t index = 0; index < 5; ++index)
    {
        following->push(following, sets[index], nullptr);
    }
    const Types before = typesOf(recogniser->computeErrorRecoverySet(recogniser.get()));
    const pANTLR3_BITSET set = recogniser->computeErrorRecoverySet(recogniser.get());
    for (ANTLR3_INT32 type = 0; type < typeCount; ++type)
    {
        set->add(set, type);
    }
    set->free(set);
    EXPECT_EQ(typesOf(recogniser->computeErrorRecoverySet(recogniser.get())), before);
}

TEST(FollowStack, isTheRecognisersWhileItLives)
{
    static ANTLR3_BITWORD word = 1 << 5;
    static ANTLR3_BITSET_LIST set = {&word, 1};
    const Recogniser recogniser;
    const pANTLR3_STACK runtimes = recogniser->state->following;
    const auto recoverySet = recogniser->computeErrorRecoverySet;
    const auto ruleFollow = recogniser->computeCSRuleFollow;
    for (int round = 0; round < 3; ++round)
    {
        const FollowStack follows(recogniser.get());
        const pANTLR3_STACK following = recogniser->state->following;
        EXPECT_NE(following, runtimes);
        EXPECT_NE(recogniser->computeErrorRecoverySet, recoverySet);
        EXPECT_NE(recogniser->computeCSRuleFollow, ruleFollow);
        EXPECT_EQ(&FollowStack::of(recogniser.get()), &follows);
        for (int count = 0; count < 100; ++count)
        {
            following->push(following, &set, nullptr);
        }
        EXPECT_EQ(following->size(following), 100u);
        for (int count = 0; count < 100; ++count)
        {
            following->pop(following);
        }
        EXPECT_EQ(following->size(following), 0u);
    }
    EXPECT_EQ(recogniser->state->following, runtimes);
    EXPECT_EQ(recogniser->computeErrorRecoverySet, recoverySet);
    EXPECT_EQ(recogniser->computeCSRuleFollow, ruleFollow);
    EXPECT_EQ(runtimes->size(runtimes), 0u);
    EXPECT_NE(runtimes->push(runtimes, &set, nullptr), ANTLR3_FALSE);
    EXPECT_EQ(runtimes->pop(runtimes), nullptr);
}
