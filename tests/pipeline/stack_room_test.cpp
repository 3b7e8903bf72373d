// How much of its stack a thread has left.
#include <gtest/gtest.h>

#include "pipeline/stack_room.h"

#include <pthread.h>
#include <sys/resource.h>
#include <ucontext.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <stdexcept>
#include <string>

using vorn::parsers::toml::stackRoom;

namespace
{

constexpr std::size_t kilobyte = 1024;
constexpr std::size_t megabyte = 1024 * kilobyte;

// What is assumed where nothing is known, and where there is no end.
constexpr std::size_t unknownRoom = 32 * kilobyte;
constexpr std::size_t mostRoom = 64 * megabyte;

// The room below a frame of so many bytes.
template <std::size_t size>
[[gnu::noinline]] std::size_t roomBelowFrame()
{
    volatile char frame[size];
    frame[0] = 0;
    const std::size_t room = stackRoom();
    return room + static_cast<std::size_t>(frame[0]);
}

struct Rooms
{
    std::size_t here = 0;
    std::size_t belowSmallFrame = 0;
    std::size_t belowLargeFrame = 0;
};

constexpr std::size_t smallFrame = 1 * kilobyte;
constexpr std::size_t largeFrame = 20 * kilobyte;

void* measure(void* rooms)
{
    *static_cast<Rooms*>(rooms) = {stackRoom(), roomBelowFrame<smallFrame>(),
                                   roomBelowFrame<largeFrame>()};
    return nullptr;
}

Rooms roomsOfThread(const pthread_attr_t& attributes)
{
    Rooms rooms;
    pthread_t thread = {};
    if (pthread_create(&thread, &attributes, measure, &rooms) != 0 ||
        pthread_join(thread, nullptr) != 0)
    {
        throw std::runtime_error("no thread with such a stack");
    }
    return rooms;
}

Rooms roomsOfThread(std::size_t stackSize)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stackSize);
    const Rooms rooms = roomsOfThread(attributes);
    pthread_attr_destroy(&attributes);
    return rooms;
}

Rooms roomsOfMainThread()
{
    Rooms rooms;
    measure(&rooms);
    return rooms;
}

void expectLessInDeeperFrames(const Rooms& rooms)
{
    EXPECT_LT(rooms.belowSmallFrame, rooms.here);
    const std::size_t difference = rooms.belowSmallFrame - rooms.belowLargeFrame;
    EXPECT_GE(difference, largeFrame - smallFrame - 256);
    EXPECT_LE(difference, largeFrame - smallFrame + 256);
}

// Memory for a stack that no thread was started with.
class OtherStack
{
public:
    void* begin() const { return memory_.get(); }
    static constexpr std::size_t size = 256 * kilobyte;

private:
    std::unique_ptr<char[]> memory_ = std::make_unique<char[]>(size);
};

Rooms roomsFound;

// On a stack for contexts.
Rooms roomsOfContext()
{
    const OtherStack stack;
    ucontext_t here = {};
    ucontext_t there = {};
    getcontext(&there);
    there.uc_stack.ss_sp = stack.begin();
    there.uc_stack.ss_size = OtherStack::size;
    there.uc_link = &here;
    makecontext(
        &there, [] { measure(&roomsFound); }, 0);
    roomsFound = {};
    if (swapcontext(&here, &there) != 0)
    {
        throw std::runtime_error("no such context");
    }
    return roomsFound;
}

// On a stack for signal handlers.
Rooms roomsOfSignalHandler()
{
    const OtherStack stack;
    stack_t before = {};
    stack_t own = {};
    own.ss_sp = stack.begin();
    own.ss_size = OtherStack::size;
    struct sigaction action = {};
    struct sigaction earlier = {};
    action.sa_handler = [](int) { measure(&roomsFound); };
    action.sa_flags = SA_ONSTACK;
    roomsFound = {};
    if (sigaltstack(&own, &before) != 0 || sigaction(SIGUSR1, &action, &earlier) != 0 ||
        raise(SIGUSR1) != 0)
    {
        throw std::runtime_error("no such signal handler");
    }
    sigaction(SIGUSR1, &earlier, nullptr);
    sigaltstack(&before, nullptr);
    return roomsFound;
}

void expectUnknown(const Rooms& rooms)
{
    EXPECT_EQ(rooms.here, unknownRoom);
    EXPECT_EQ(rooms.belowSmallFrame, unknownRoom);
    EXPECT_EQ(rooms.belowLargeFrame, unknownRoom);
}

} // namespace

TEST(StackRoom, ofAThreadIsNearlyItsSize)
{
    for (const std::size_t size :
         {64 * kilobyte, 128 * kilobyte, 1 * megabyte, 8 * megabyte, 60 * megabyte})
    {
        SCOPED_TRACE(std::to_string(size / kilobyte) + " kilobytes");
        const Rooms rooms = roomsOfThread(size);
        EXPECT_GT(rooms.here, size - 16 * kilobyte);
        EXPECT_LT(rooms.here, size);
        expectLessInDeeperFrames(rooms);
    }
}

TEST(StackRoom, ofAThreadWithMemoryOfItsOwnIsNearlyItsSize)
{
    const OtherStack stack;
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstack(&attributes, stack.begin(), OtherStack::size), 0);
    const Rooms rooms = roomsOfThread(attributes);
    pthread_attr_destroy(&attributes);
    EXPECT_GT(rooms.here, OtherStack::size - 16 * kilobyte);
    EXPECT_LT(rooms.here, OtherStack::size);
    expectLessInDeeperFrames(rooms);
}

TEST(StackRoom, hasALimit)
{
    EXPECT_EQ(roomsOfThread(mostRoom + 4 * megabyte).belowLargeFrame, mostRoom);
    EXPECT_EQ(roomsOfThread(4 * mostRoom).here, mostRoom);
}

TEST(StackRoom, ofTheMainThreadIsWhatItMayGrowTo)
{
    rlimit limit = {};
    ASSERT_EQ(getrlimit(RLIMIT_STACK, &limit), 0);
    const std::size_t size = limit.rlim_cur == RLIM_INFINITY
                                 ? mostRoom
                                 : std::min<std::size_t>(limit.rlim_cur, mostRoom);
    const Rooms rooms = roomsOfMainThread();
    // Arguments and environment stand there as well.
    EXPECT_GT(rooms.here, size / 2);
    EXPECT_LE(rooms.here, size);
    if (rooms.here < mostRoom)
    {
        expectLessInDeeperFrames(rooms);
    }
}

TEST(StackRoom, isLittleOnAStackThatTheThreadWasNotStartedWith)
{
    expectUnknown(roomsOfContext());
    expectUnknown(roomsOfSignalHandler());
}

TEST(StackRoom, isKnownAgainBehindSuchAStack)
{
    const Rooms before = roomsOfMainThread();
    roomsOfContext();
    EXPECT_EQ(roomsOfMainThread().here, before.here);
}
