// Memory that fails as told.  Linking this replaces malloc() and its like.
#pragma once

#include <cstddef>

namespace test
{

enum class Failing
{
    once,      // one request
    fromThere, // that request and all after it
};

// Requests for memory are counted while this lives, and the one with this number fails; with
// number 0 none does.  Those that the runtime makes itself are left out, since the runtime does
// not live through a failure.
class FailingMemory
{
public:
    explicit FailingMemory(long number, Failing failing = Failing::once);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    long requests() const;
    bool hasFailed() const;
    // The blocks that have been had since then and are not given back, the runtime's too.
    long blocks() const;

private:
    long number_;
    long blocksBefore_;
};

// While this lives, of the requests for blocks of this size, the runtime's too, the one with this
// number fails.
class FailingBlock
{
public:
    FailingBlock(std::size_t size, long number, Failing failing = Failing::once);
    FailingBlock(const FailingBlock&) = delete;
    FailingBlock& operator=(const FailingBlock&) = delete;
    ~FailingBlock();

    bool hasFailed() const;
    // The blocks that have been had since then and are not given back.
    long blocks() const;

private:
    long blocksBefore_;
};

// Counts a request that is not made by malloc() or its like; true where it has to fail.
bool hasToFail();

// While this lives, requests neither count nor fail.
class SparedMemory
{
public:
    SparedMemory();
    SparedMemory(const SparedMemory&) = delete;
    SparedMemory& operator=(const SparedMemory&) = delete;
    ~SparedMemory();

private:
    bool wasCounting_;
};

// Whether the program has the runtime as a shared library, by which its requests are known.
bool isRuntimeKnown();

} // namespace test
