// Threads that are cancelled while the library logs.  This program's logger asks for that at the
// line that it is told, and is a cancellation point, as one that writes would be.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>
#include <vorn/utils/log.h>

#include <pthread.h>

#include <string>

#include "support/counting_visitor.h"
#include "support/stderr_capture.h"

using vorn::parsers::toml::visitTomlTree;

namespace
{

struct Reading
{
    std::string text;
    int cancellingLine;
    int linesDone = 0;           // whose logger has returned
    bool isVisitorFreed = false; // its destructor has run
    bool hasReturned = false;
};

thread_local Reading* current = nullptr;

class FreedVisitor : public test::CountingVisitor
{
public:
    ~FreedVisitor() override { current->isVisitorFreed = true; }
};

void* readOnThread(void* reading)
{
    current = static_cast<Reading*>(reading);
    FreedVisitor visitor;
    visitTomlTree(current->text, visitor);
    current->hasReturned = true;
    pthread_testcancel();
    return nullptr;
}

// What the thread that reads returns.
void* resultOf(Reading& reading)
{
    const test::StderrCapture capture;
    pthread_t thread = {};
    EXPECT_EQ(pthread_create(&thread, nullptr, readOnThread, &reading), 0);
    void* result = nullptr;
    EXPECT_EQ(pthread_join(thread, &result), 0);
    return result;
}

} // namespace

void logInternal(const char*, const char*, const char*, int, int, int, int, const char*, ...)
{
    if (current->linesDone + 1 == current->cancellingLine)
    {
        pthread_cancel(pthread_self());
    }
    pthread_testcancel();
    ++current->linesDone;
}

// Lines: of the lexer, of the parser, and the count of errors, which comes from no display.
TEST(TomlCancellingLogger, isLeftToReturnWhileADisplayRuns)
{
    for (const int line : {1, 2})
    {
        SCOPED_TRACE(line);
        Reading reading = {"a = 1979-05-27 \n", line};
        EXPECT_EQ(resultOf(reading), PTHREAD_CANCELED);
        EXPECT_GE(reading.linesDone, line);
    }
}

TEST(TomlCancellingLogger, endsTheThreadAfterwards)
{
    Reading reading = {"a = 1979-05-27 \n", 1};
    EXPECT_EQ(resultOf(reading), PTHREAD_CANCELED);
    EXPECT_EQ(reading.linesDone, 2); // both displays; the line after them is where it ends
    EXPECT_FALSE(reading.hasReturned);
    EXPECT_TRUE(reading.isVisitorFreed);
}

TEST(TomlCancellingLogger, endsTheThreadAtOnceOutsideOfDisplays)
{
    Reading reading = {"a = 1979-05-27 \n", 3};
    EXPECT_EQ(resultOf(reading), PTHREAD_CANCELED);
    EXPECT_EQ(reading.linesDone, 2);
    EXPECT_FALSE(reading.hasReturned);
    EXPECT_TRUE(reading.isVisitorFreed);
}

// A thread that cannot be cancelled stays like that.
TEST(TomlCancellingLogger, leavesAThreadThatForbidsItAlone)
{
    Reading reading = {"a = 1979-05-27 \n", 1};
    const auto forbid = [](void* given) -> void*
    {
        pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, nullptr);
        return readOnThread(given);
    };
    const test::StderrCapture capture;
    pthread_t thread = {};
    ASSERT_EQ(pthread_create(&thread, nullptr, forbid, &reading), 0);
    void* result = &reading;
    EXPECT_EQ(pthread_join(thread, &result), 0);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(reading.linesDone, 3);
    EXPECT_TRUE(reading.hasReturned);
}
