#include "figures.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string_view>

namespace test
{
namespace
{

std::uint64_t linesThat(const Reading& reading, std::string_view start)
{
    const auto starts = [start](const LogLine& line)
    { return line.format.compare(0, start.size(), start) == 0; };
    return static_cast<std::uint64_t>(
        std::count_if(reading.lines.begin(), reading.lines.end(), starts));
}

} // namespace

void Figures::add(const std::string& document, const Comparison& comparison)
{
    const Reading& reading = comparison.reference;
    ++documents_;
    bytes_ += document.size();
    accepted_ += reading.accepted ? 1 : 0;
    direct_ += comparison.direct ? 1 : 0;
    const std::uint64_t lexerErrors = linesThat(reading, "Invalid TOML: lexer");
    const std::uint64_t parserErrors = linesThat(reading, "Invalid TOML: parser");
    const std::uint64_t treeErrors = linesThat(reading, "Invalid TOML: tree parser");
    lexerErrors_ += lexerErrors > 0 ? 1 : 0;
    parserErrors_ += parserErrors > 0 ? 1 : 0;
    treeErrors_ += treeErrors > 0 ? 1 : 0;
    failedWalks_ += linesThat(reading, "Failed to visit") > 0 ? 1 : 0;
    errors_ += lexerErrors + parserErrors + treeErrors;
}

double Figures::seconds() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

void Figures::print() const
{
    std::printf("%" PRIu64 " documents of %.1f MB: %" PRIu64 " accepted, %" PRIu64
                " of them directly; %.0f s\n",
                documents_, static_cast<double>(bytes_) / 1e6, accepted_, direct_, seconds());
    std::fflush(stdout);
}

void Figures::printMistakes() const
{
    const std::uint64_t rejected = documents_ - accepted_;
    std::printf("%" PRIu64 " rejected: %" PRIu64 " with errors of the lexer, %" PRIu64
                " of the parser, %" PRIu64 " of the tree parser, %" PRIu64
                " with a walk that failed; %.1f errors each\n",
                rejected, lexerErrors_, parserErrors_, treeErrors_, failedWalks_,
                static_cast<double>(errors_) /
                    static_cast<double>(std::max<std::uint64_t>(rejected, 1)));
    std::fflush(stdout);
}

} // namespace test
