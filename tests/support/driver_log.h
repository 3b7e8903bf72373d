// The log lines of the driver.
#pragma once

#include "support/log_recorder.h"

#include <cstddef>
#include <string>
#include <vector>

namespace test
{

using Messages = std::vector<std::string>;

std::string lexerFailure(const std::string& matched);
std::string parserFailure(const std::string& tokens);
std::string treeFailure();
std::string walkFailure();
std::string syntaxErrors(int count);
std::string tooDeep(unsigned levels);
std::string tooLarge(std::size_t bytes);

// Checks that `lines` are the lines that the driver logs for `messages`: module, level,
// format and all; of the source line only that there is one.
void expectDriverLog(const std::vector<LogLine>& lines, const Messages& messages);

} // namespace test
