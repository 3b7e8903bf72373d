#include "finding.h"

#include "differential/escaped.h"

#include <cstdio>
#include <cstdlib>

namespace fuzz
{

void report(const std::string& finding)
{
    std::fputs(finding.c_str(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
    std::abort();
}

void expect(bool holds, const char* what, const std::string& input)
{
    if (!holds)
    {
        report(std::string("This does not hold: ") + what + "\nThe input: " + test::escaped(input));
    }
}

} // namespace fuzz
