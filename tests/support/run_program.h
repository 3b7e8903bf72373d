#pragma once

#include <spawn.h>

#include <functional>
#include <string>
#include <vector>

namespace test
{

// Starts a program, the first word, with its arguments and the streams that `redirect` gives it.
pid_t startProgram(std::vector<std::string> words,
                   const std::function<void(posix_spawn_file_actions_t*)>& redirect);

// How a program ended and what it wrote.
struct ProgramRun
{
    int status = -1; // as a shell has it: the exit status, or 128 and the signal's number
    std::string standardOutput;
    std::string standardError;
};

// Runs a program, the first word, with its arguments and all of its standard input.
ProgramRun runProgram(const std::vector<std::string>& words, const std::string& input = "");

} // namespace test
