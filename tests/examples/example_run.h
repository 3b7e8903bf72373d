// Runs of the programs in examples/, whose places come from the build.
#pragma once

#include "support/run_program.h"
#include "support/temporary_directory.h"

#include <string>

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

} // namespace test
