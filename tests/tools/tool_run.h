// Runs of vorn-toml, whose place comes from the build.
#pragma once

#include "support/run_program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace test
{

using Words = std::vector<std::string>;

// Exit statuses.
enum Status
{
    accepted = 0,
    rejected = 1,
    usage = 2,
    unreadable = 3
};

inline Words joined(Words words, const Words& more)
{
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

inline ProgramRun runTool(const Words& arguments, const std::string& input = "")
{
    return runProgram(joined({VORN_TOML}, arguments), input);
}

inline void expectRun(const ProgramRun& run, int status, const std::string& output,
                      const std::string& error)
{
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.standardOutput, output);
    EXPECT_EQ(run.standardError, error);
}

inline std::string repeated(const std::string& text, int count)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

} // namespace test
