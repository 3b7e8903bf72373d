#include "unified_diff.h"

#include <algorithm>
#include <vector>

#include "line_matching.h"

namespace tool::fixing
{
namespace
{

constexpr std::size_t context = 3; // lines around a change

using Lines = std::vector<std::string_view>;

// Changes that are shown together, with the lines around them.
class Hunk
{
public:
    Hunk(const Lines& before, const Lines& after, const Match& around)
        : before_(before), after_(after)
    {
        const std::size_t shown = std::min(around.count, context);
        beginBefore_ = atBefore_ = around.before + around.count - shown;
        beginAfter_ = atAfter_ = around.after + around.count - shown;
        addSame(shown);
    }

    // Adds the lines up to the next match, which are different.
    void addDifferent(const Match& next)
    {
        for (; atBefore_ < next.before; ++atBefore_)
        {
            addLine('-', before_[atBefore_]);
        }
        for (; atAfter_ < next.after; ++atAfter_)
        {
            addLine('+', after_[atAfter_]);
        }
    }

    void addSame(std::size_t count)
    {
        for (; count > 0; --count, ++atAfter_)
        {
            addLine(' ', before_[atBefore_++]);
        }
    }

    std::string text() const
    {
        return "@@ -" + range(beginBefore_, atBefore_) + " +" + range(beginAfter_, atAfter_) +
               " @@\n" + lines_;
    }

private:
    static std::string range(std::size_t begin, std::size_t end)
    {
        // An empty range is named by the line before it.
        const std::size_t first = begin == end ? begin : begin + 1;
        return std::to_string(first) + (end - begin == 1 ? "" : ',' + std::to_string(end - begin));
    }

    void addLine(char mark, std::string_view line)
    {
        lines_ += mark;
        lines_ += line;
        if (line.back() != '\n')
        {
            lines_ += "\n\\ No newline at end of file\n";
        }
    }

    const Lines& before_;
    const Lines& after_;
    std::size_t beginBefore_ = 0;
    std::size_t beginAfter_ = 0;
    std::size_t atBefore_ = 0;
    std::size_t atAfter_ = 0;
    std::string lines_;
};

} // namespace

std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after)
{
    if (before == after)
    {
        return "";
    }
    const Lines linesBefore = linesOf(before);
    const Lines linesAfter = linesOf(after);
    const std::vector<Match> matches = matchLines(linesBefore, linesAfter);
    std::string diff = "--- " + name + "\n+++ " + name + '\n';
    Match around = {0, 0, 0};
    for (auto next = matches.begin(); next != matches.end();)
    {
        if (next->before == around.before + around.count &&
            next->after == around.after + around.count)
        {
            around = *next++;
            continue;
        }
        Hunk hunk(linesBefore, linesAfter, around);
        hunk.addDifferent(*next);
        for (; next + 1 < matches.end() && next->count <= 2 * context; ++next)
        {
            hunk.addSame(next->count);
            hunk.addDifferent(next[1]);
        }
        hunk.addSame(std::min(next->count, context));
        diff += hunk.text();
        around = *next++;
    }
    return diff;
}

} // namespace tool::fixing
