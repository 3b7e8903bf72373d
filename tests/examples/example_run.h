// Runs of the programs in examples/, whose places come from the build.
#pragma once

#include "support/run_program.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace test
{

// On a document, which is in the file `document.toml` of the working directory.
inline ProgramRun runOnText(const std::string& program, const std::string& text)
{
    const TemporaryDirectory directory;
    directory.write("document.toml", text);
    return runProgram({"/bin/sh", "-c", R"(cd "$1" && exec "$2" document.toml)", "sh",
                       directory.path("."), program});
}

// On an example, which is named as someone at the root of the project names it.
inline ProgramRun runOnExample(const std::string& program, const std::string& name)
{
    return runProgram({"/bin/sh", "-c", R"(cd "$1/.." && exec "$2" "examples/$3.toml")", "sh",
                       VORN_EXAMPLES, program, name});
}

// A document, and what a program says of it: a line each, without the name of the file.
struct Mistaken
{
    std::string text;
    std::string problems;
};

inline void expectProblems(const std::string& program, const std::vector<Mistaken>& documents)
{
    for (const Mistaken& document : documents)
    {
        SCOPED_TRACE(document.text);
        std::string problems;
        for (const char letter : document.problems)
        {
            const bool startsLine = problems.empty() || problems.back() == '\n';
            problems += (startsLine ? "document.toml:" : "") + std::string(1, letter);
        }
        const ProgramRun run = runOnText(program, document.text);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.standardOutput, "");
        EXPECT_EQ(run.standardError, problems);
    }
}

} // namespace test
