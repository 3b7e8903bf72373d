#include "run_program.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>

namespace test
{
namespace
{

// A file in memory that stands for a stream: unlike a pipe it takes any amount while
// nobody reads.
class StreamFile
{
public:
    explicit StreamFile(const std::string& content = "")
        : file_(memfd_create("stream", MFD_CLOEXEC))
    {
        if (file_ < 0 ||
            write(file_, content.data(), content.size()) != static_cast<ssize_t>(content.size()) ||
            lseek(file_, 0, SEEK_SET) != 0)
        {
            throw std::runtime_error("a stream of a program cannot be set up");
        }
    }
    StreamFile(const StreamFile&) = delete;
    StreamFile& operator=(const StreamFile&) = delete;
    ~StreamFile() { close(file_); }

    int descriptor() const { return file_; }

    std::string content() const
    {
        std::string text(static_cast<std::size_t>(lseek(file_, 0, SEEK_END)), '\0');
        if (pread(file_, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size()))
        {
            throw std::runtime_error("a program's output cannot be read");
        }
        return text;
    }

private:
    int file_ = -1;
};

} // namespace

pid_t startProgram(std::vector<std::string> words,
                   const std::function<void(posix_spawn_file_actions_t*)>& redirect)
{
    std::vector<char*> arguments;
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t streams;
    posix_spawn_file_actions_init(&streams);
    redirect(&streams);
    pid_t child = -1;
    const int failure =
        posix_spawn(&child, arguments[0], &streams, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&streams);
    if (failure != 0)
    {
        throw std::runtime_error(words[0] + ": " + std::strerror(failure));
    }
    return child;
}

ProgramRun runProgram(const std::vector<std::string>& words, const std::string& input)
{
    const StreamFile standardInput(input);
    const StreamFile standardOutput;
    const StreamFile standardError;
    const auto redirect = [&](posix_spawn_file_actions_t* streams)
    {
        posix_spawn_file_actions_adddup2(streams, standardInput.descriptor(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(streams, standardOutput.descriptor(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(streams, standardError.descriptor(), STDERR_FILENO);
    };
    const pid_t child = startProgram(words, redirect);
    int status = 0;
    if (waitpid(child, &status, 0) != child)
    {
        throw std::runtime_error(words[0] + " cannot be waited for");
    }
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
            standardOutput.content(), standardError.content()};
}

} // namespace test
