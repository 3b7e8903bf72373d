// The system calls that reading a file takes, as another process sees them.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <string>
#include <vector>

#include "support/counting_visitor.h"
#include "support/large_documents.h"
#include "support/temporary_directory.h"

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

using Calls = std::vector<std::uint64_t>; // their numbers

// A call that the library does not make shows where the reading starts, and where it ends.
constexpr long mark = SYS_getppid;

[[noreturn]] void readInChild(const FilePath& path)
{
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
    {
        _exit(2);
    }
    std::raise(SIGSTOP);
    test::CountingVisitor visitor;
    // The first time, memory comes from the system.
    visitTomlTree(path, visitor);
    syscall(mark);
    const bool accepted = visitTomlTree(path, visitor);
    syscall(mark);
    _exit(accepted ? 0 : 1);
}

// The calls between the marks, of a child that has stopped.
Calls callsOf(pid_t child)
{
    Calls calls;
    bool isBetween = false;
    int status = 0;
    while (ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 &&
           waitpid(child, &status, 0) == child && WIFSTOPPED(status))
    {
        __ptrace_syscall_info info = {};
        if (ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof(info), &info) <= 0 ||
            info.op != PTRACE_SYSCALL_INFO_ENTRY)
        {
            continue;
        }
        if (info.entry.nr == mark)
        {
            isBetween = !isBetween;
        }
        else if (isBetween)
        {
            calls.push_back(info.entry.nr);
        }
    }
    EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the document was refused";
    return calls;
}

class SystemCalls : public testing::Test
{
protected:
    void SetUp() override
    {
        // Some containers forbid it.
        if (ofReading("").empty())
        {
            GTEST_SKIP() << "a process cannot be traced here";
        }
    }

    Calls ofReading(const std::string& content) const
    {
        const FilePath path(directory_.write("file.toml", content));
        const pid_t child = fork();
        if (child == 0)
        {
            readInChild(path);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        if (!WIFSTOPPED(status) || ptrace(PTRACE_SETOPTIONS, child, nullptr,
                                          PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0)
        {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return {};
        }
        return callsOf(child);
    }

private:
    test::TemporaryDirectory directory_;
};

} // namespace

// Which call each of them makes depends on the system; that of fileExists() is its own affair.
TEST_F(SystemCalls, ofASmallFileAreFour)
{
    for (const std::size_t size : {0u, 100u, 1024u, 1900u})
    {
        const Calls calls = ofReading(test::mixedDocument(size));
        ASSERT_EQ(calls.size(), 4u) << size;
        EXPECT_EQ(calls[1], SYS_openat);
        EXPECT_EQ(calls[2], SYS_pread64);
        EXPECT_EQ(calls[3], SYS_close);
    }
}

// (For one that is larger than these, the heap may have to grow, too.)
TEST_F(SystemCalls, ofALargerFileAreTwoMore)
{
    for (const std::size_t size : {3000u, 10'000u, 20'000u})
    {
        const Calls calls = ofReading(test::mixedDocument(size));
        ASSERT_EQ(calls.size(), 6u) << size;
        EXPECT_EQ(std::count(calls.begin(), calls.end(), SYS_read), 1);
    }
}
