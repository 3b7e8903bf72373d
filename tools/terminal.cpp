#include "terminal.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace tool
{
namespace
{

std::string_view variable(const char* name)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing sets variables.
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

bool isErrorTerminal()
{
    return isatty(STDERR_FILENO) == 1 && !variable("TERM").empty() && variable("TERM") != "dumb";
}

bool isOutputTerminal()
{
    return isatty(STDOUT_FILENO) == 1;
}

bool useColour(Colour colour)
{
    return colour == Colour::always ||
           (colour == Colour::automatic && isErrorTerminal() && variable("NO_COLOR").empty());
}

} // namespace tool
