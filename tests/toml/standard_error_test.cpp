// What a rejected document leaves on standard error with the platform's own logger: the
// runtime's report of an error, and after it the log line.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include "support/event_recorder.h"
#include "support/stderr_capture.h"

namespace
{

std::string standardErrorOf(const std::string& text)
{
    const test::StderrCapture capture;
    test::EventRecorder visitor;
    vorn::parsers::toml::visitTomlTree(text, visitor);
    return capture.text();
}

} // namespace

TEST(TomlStandardError, hasEachReportBeforeItsLogLine)
{
    const std::string text = standardErrorOf("@\na = {}\n");
    std::size_t position = 0;
    for (const std::string part :
         {"toml(1) : lexer error 3 :\n", "near '@' :\n",
          "error vorn_parsers src/toml.cpp:", " operator(): Invalid TOML: lexer failure at: @\n",
          "toml(2)  : error 3 : ", "error vorn_parsers src/toml.cpp:",
          " operator(): Invalid TOML: parser failure at: \\na={}\\n\n", " : Extraneous input",
          "error vorn_parsers src/toml.cpp:", " operator(): Invalid TOML: tree parser failure\n",
          "error vorn_parsers src/toml.cpp:",
          " visitTomlTree: Failed: input TOML has 3 syntax errors\n"})
    {
        const std::size_t found = text.find(part, position);
        ASSERT_NE(found, std::string::npos) << part << " in\n" << text;
        position = found + part.size();
    }
    EXPECT_EQ(position, text.size());
}

TEST(TomlStandardError, isEmptyForADocumentThatIsRight)
{
    EXPECT_EQ(standardErrorOf("a = 1\n"), "");
}
