// What all fuzz targets begin with.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace
{

// For recognisers that go as deep as the longest input, which the reference pipeline does.
// The kernel keeps this much free below a main thread's stack, whatever its first limit.
constexpr rlim_t stackSize = 96 * 1024 * 1024;

void raiseStackLimit()
{
    rlimit limit = {};
    const bool known = getrlimit(RLIMIT_STACK, &limit) == 0;
    const bool enough = known && limit.rlim_cur >= stackSize;
    limit.rlim_cur = stackSize;
    if (!known || (!enough && setrlimit(RLIMIT_STACK, &limit) != 0))
    {
        std::fputs("The limit of the stack's size cannot be raised.\n", stderr);
        std::exit(2);
    }
}

} // namespace

extern "C" const char* __asan_default_options()
{
    return "detect_leaks=1:detect_stack_use_after_return=1:quarantine_size_mb=32";
}

extern "C" const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

extern "C" int LLVMFuzzerInitialize(int* count, char*** words)
{
    raiseStackLimit();
    // The fuzzer and the sanitizers write to a copy of standard error then, and are heard
    // also while the targets capture what the runtime writes there.
    static char option[] = "-close_fd_mask=2";
    static std::vector<char*> all(*words, *words + *count);
    all.insert(all.begin() + 1, option);
    all.push_back(nullptr);
    *words = all.data();
    *count = static_cast<int>(all.size()) - 1;
    return 0;
}
