#pragma once

#include <string>
#include <vector>

namespace test
{

// What a program wrote whose standard error is a terminal, and its output another file.
struct TerminalRun
{
    int status = -1;
    std::string terminal;
};

TerminalRun runOnTerminal(const std::vector<std::string>& words);

} // namespace test
