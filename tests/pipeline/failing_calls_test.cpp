// What the diagnosis of refused documents does where calls of the C library, or of the
// runtime, fail.
#include <gtest/gtest.h>

#include "pipeline/error_display.h"
#include "pipeline/node_texts.h"
#include "pipeline/runtime_text.h"
#include "pipeline/stack_room.h"

#include <vorn/parsers/toml.h>

#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>

#include <cstddef>
#include <memory>
#include <string>
#include <thread>

#include "support/driver_log.h"
#include "support/event_recorder.h"
#include "support/reading.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"
#include "support/tree_pipeline.h"

using namespace vorn::parsers::toml;

namespace
{

enum class Call
{
    none,
    malloc,
    calloc,
    mapping,
    laterMapping, // all but the first one
    lexer,
    threadAttributes,
    threadStack,
};

Call failing = Call::none;

// What a function returns while a call of it fails.
template <typename Function>
auto resultWithout(Call call, Function function)
{
    failing = call;
    auto result = function();
    failing = Call::none;
    return result;
}

constexpr std::size_t unknownRoom = std::size_t{32} * 1024;

} // namespace

// What the program's calls reach (--wrap of the linker).
extern "C"
{
    void* __real_malloc(std::size_t size);
    void* __wrap_malloc(std::size_t size)
    {
        return failing == Call::malloc ? nullptr : __real_malloc(size);
    }

    void* __real_calloc(std::size_t count, std::size_t size);
    void* __wrap_calloc(std::size_t count, std::size_t size)
    {
        return failing == Call::calloc ? nullptr : __real_calloc(count, size);
    }

    void* __real_mmap(void* address, std::size_t size, int protection, int flags, int file,
                      off_t offset);
    void* __wrap_mmap(void* address, std::size_t size, int protection, int flags, int file,
                      off_t offset)
    {
        if (failing == Call::mapping)
        {
            return MAP_FAILED;
        }
        failing = failing == Call::laterMapping ? Call::mapping : failing;
        return __real_mmap(address, size, protection, flags, file, offset);
    }

    pANTLR3_LEXER __real_antlr3LexerNewStream(ANTLR3_UINT32 hint, pANTLR3_INPUT_STREAM input,
                                              pANTLR3_RECOGNIZER_SHARED_STATE state);
    pANTLR3_LEXER __wrap_antlr3LexerNewStream(ANTLR3_UINT32 hint, pANTLR3_INPUT_STREAM input,
                                              pANTLR3_RECOGNIZER_SHARED_STATE state)
    {
        return failing == Call::lexer ? nullptr : __real_antlr3LexerNewStream(hint, input, state);
    }

    int __real_pthread_getattr_np(pthread_t thread, pthread_attr_t* attributes);
    int __wrap_pthread_getattr_np(pthread_t thread, pthread_attr_t* attributes)
    {
        return failing == Call::threadAttributes ? 1
                                                 : __real_pthread_getattr_np(thread, attributes);
    }

    int __real_pthread_attr_getstack(const pthread_attr_t* attributes, void** lowest,
                                     std::size_t* size);
    int __wrap_pthread_attr_getstack(const pthread_attr_t* attributes, void** lowest,
                                     std::size_t* size)
    {
        return failing == Call::threadStack
                   ? 1
                   : __real_pthread_attr_getstack(attributes, lowest, size);
    }
}

TEST(FailingCalls, leaveNoLexer)
{
    const std::string text = "a = 1\n";
    const test::InputStream input = test::openInput(text);
    for (const Call call : {Call::calloc, Call::lexer})
    {
        EXPECT_EQ(resultWithout(call, [&input] { return TomlLexerNew(input.get()); }), nullptr);
    }
    const std::unique_ptr<TomlLexer, test::FreeRecogniser> lexer(TomlLexerNew(input.get()));
    EXPECT_NE(lexer, nullptr);
}

TEST(FailingCalls, leaveNoTexts)
{
    const std::string text = "a = 1\n";
    const test::ParserPipeline pipeline(text);
    const pANTLR3_LEXER lexer = pipeline.lexer().get()->pLexer;
    const pANTLR3_TOKEN_STREAM tokens = pipeline.tokens()->tstream;
    tokens->_LT(tokens, 1); // has the lexer go over its text
    EXPECT_EQ(resultWithout(Call::malloc, [lexer] { return matchedText(lexer); }), nullptr);
}

TEST(FailingCalls, leaveTheTextsOfNodesToTheRuntime)
{
    const std::string text = "a = 1\n";
    const test::ParserPipeline pipeline(text);
    const pANTLR3_BASE_TREE document = pipeline.parser()->document(pipeline.parser()).tree;
    const std::unique_ptr<ANTLR3_COMMON_TREE_NODE_STREAM, test::FreeRecogniser> nodes(
        antlr3CommonTreeNodeStreamNewTree(document, 100));
    const NodeTexts texts(nodes.get());
    pANTLR3_BASE_TREE key = document;
    while (key->getChildCount(key) > 0)
    {
        key = static_cast<pANTLR3_BASE_TREE>(key->getChild(key, 0));
    }
    const pANTLR3_TREE_NODE_STREAM stream = nodes->tnstream;
    const pANTLR3_STRING_FACTORY runtimes = nodes->stringFactory;
    const ANTLR3_UINT32 before = runtimes->index;
    const auto toString = [stream, key] { return stream->toStringSS(stream, key, key); };
    EXPECT_STREQ(characters(resultWithout(Call::malloc, toString)), "a");
    EXPECT_GT(runtimes->index, before);

    const ANTLR3_UINT32 count = runtimes->index;
    EXPECT_STREQ(characters(toString()), "a");
    EXPECT_EQ(runtimes->index, count);
}

TEST(FailingCalls, leaveDisplaysWithoutTheTextOfTheTree)
{
    const test::TreePipeline pipeline(R"(DEC_INT "1" EOF)");
    static std::string shown;
    shown = "not shown";
    pipeline.recogniser()->displayRecognitionError =
        [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    {
        prepareDisplay(static_cast<pANTLR3_TREE_PARSER>(failed->super));
        const auto tree = static_cast<pANTLR3_BASE_TREE>(failed->state->exception->token);
        shown =
            characters(resultWithout(Call::malloc, [tree] { return tree->toStringTree(tree); }));
    };
    test::EventRecorder visitor;
    pipeline.tree()->document(pipeline.tree(), visitor);
    EXPECT_EQ(shown, "");
}

TEST(FailingCalls, leaveTheRoomOfAStackUnknown)
{
    EXPECT_EQ(resultWithout(Call::threadStack, stackRoom), unknownRoom);
    EXPECT_GT(stackRoom(), unknownRoom);
    EXPECT_FALSE(resultWithout(Call::threadStack, [] { return mayHaveRoomForLevels(1000); }));
    std::thread(
        []
        {
            EXPECT_EQ(resultWithout(Call::threadAttributes, stackRoom), unknownRoom);
            EXPECT_GT(stackRoom(), unknownRoom);
        })
        .join();
}

// What lies below it is another thread's, although the main thread's stack is around it.
TEST(FailingCalls, leaveTheRoomOfAStackWithinTheMainThreadsUnknown)
{
    alignas(4096) char stack[2 * 1024 * 1024]; // sanitizers take much of it
    std::size_t room = 0;
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstack(&attributes, stack, sizeof(stack)), 0);
    const auto measure = [](void* result) -> void*
    {
        *static_cast<std::size_t*>(result) = resultWithout(Call::threadAttributes, stackRoom);
        return nullptr;
    };
    pthread_t thread = {};
    ASSERT_EQ(pthread_create(&thread, &attributes, measure, &room), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(room, unknownRoom);
}

// As where /proc is not mounted, and the C library finds no main thread's stack.
TEST(FailingCalls, leaveTheLimitOfTheProcessToAMainThread)
{
    const std::size_t known = stackRoom();
    const std::size_t fromLimit = resultWithout(Call::threadAttributes, stackRoom);
    // What lies between the stack's first frame and the program's name is little.
    EXPECT_NEAR(static_cast<double>(fromLimit), static_cast<double>(known), 128 * 1024.0);
    EXPECT_TRUE(resultWithout(Call::threadAttributes, [] { return mayHaveRoomForLevels(1000); }));
}

TEST(FailingCalls, leaveAMainThreadWithASmallLimitThatRoom)
{
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_STACK, &before), 0);
    rlimit limit = {std::size_t{256} * 1024, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_STACK, &limit), 0);
    const std::size_t small = resultWithout(Call::threadAttributes, stackRoom);
    limit.rlim_cur = 0; // less than is used already
    ASSERT_EQ(setrlimit(RLIMIT_STACK, &limit), 0);
    const std::size_t none = resultWithout(Call::threadAttributes, stackRoom);
    ASSERT_EQ(setrlimit(RLIMIT_STACK, &before), 0);
    EXPECT_GT(small, std::size_t{128} * 1024);
    EXPECT_LT(small, std::size_t{256} * 1024);
    EXPECT_EQ(none, unknownRoom);
}

TEST(FailingCalls, leaveDocumentsUndiagnosedForWhichThereIsNoMemory)
{
    const std::string text = "a\n";
    for (const Call call : {Call::mapping, Call::laterMapping})
    {
        const test::Reading reading = resultWithout(call, [&text] { return test::read(text); });
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.events, test::Events());
        test::expectDriverLog(reading.lines,
                              {"Failed: input TOML is too large to diagnose (2 bytes)"});
    }
}
