#include "terminal_run.h"

#include "run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace test
{
namespace
{

// The side of a terminal that a person is at.
class Terminal
{
public:
    Terminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0 ||
            ptsname_r(master_, name_.data(), name_.size()) != 0)
        {
            throw std::runtime_error("a terminal cannot be set up");
        }
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() { close(master_); }

    const char* name() const { return name_.data(); }

    // All that is written until nobody has the other side any more.
    std::string content() const
    {
        std::string text;
        std::array<char, 4096> block = {};
        for (ssize_t count = 0; (count = read(master_, block.data(), block.size())) > 0;)
        {
            text.append(block.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    int master_;
    std::array<char, 64> name_ = {};
};

} // namespace

TerminalRun runOnTerminal(const std::vector<std::string>& words)
{
    const Terminal terminal;
    const auto redirect = [&terminal](posix_spawn_file_actions_t* streams)
    {
        posix_spawn_file_actions_addopen(streams, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(streams, STDERR_FILENO, terminal.name(),
                                         O_WRONLY | O_NOCTTY, 0);
    };
    const pid_t child = startProgram(words, redirect);
    TerminalRun run;
    run.terminal = terminal.content();
    int status = 0;
    if (waitpid(child, &status, 0) == child && WIFEXITED(status))
    {
        run.status = WEXITSTATUS(status);
    }
    return run;
}

} // namespace test
