#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>
#include <type_traits>

namespace test
{

// What `work` returns in a process of its own, whose standard error is thrown away; nothing where
// that process does not get so far.
template <typename Work>
auto resultOfChild(const Work& work) -> std::optional<decltype(work())>
{
    using Result = decltype(work());
    static_assert(std::is_trivially_copyable_v<Result>, "it goes through a pipe");
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
    {
        return std::nullopt;
    }
    const pid_t child = fork();
    if (child == 0)
    {
        // An exception must not reach the frames of the process that this one is a copy of.
        [&]() noexcept
        {
            dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
            const Result result = work();
            _exit(write(ends[1], &result, sizeof(result)) == sizeof(result) ? 0 : 1);
        }();
    }
    close(ends[1]);
    Result result = {};
    const bool told = read(ends[0], &result, sizeof(result)) == sizeof(result);
    close(ends[0]);
    int status = -1;
    const bool ended = waitpid(child, &status, 0) == child && status == 0;
    return told && ended ? std::optional<Result>(result) : std::nullopt;
}

} // namespace test
