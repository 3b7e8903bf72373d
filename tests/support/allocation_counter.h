// How often memory is asked for.  Linking this replaces malloc() and its like.
#pragma once

namespace test
{

// How often memory is asked for and given back while this lives, by any thread.
class AllocationCounter
{
public:
    AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;
    ~AllocationCounter();

    long allocations() const;
    long releases() const;

private:
    long allocationsBefore_;
    long releasesBefore_;
};

} // namespace test
