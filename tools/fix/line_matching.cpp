#include "line_matching.h"

#include <algorithm>
#include <unordered_map>

namespace tool::fixing
{
namespace
{

using Lines = std::vector<std::string_view>;

// A part of both texts: lines from here to there.
struct Range
{
    std::size_t before;
    std::size_t beforeEnd;
    std::size_t after;
    std::size_t afterEnd;
};

// Two lines that correspond.
struct Pair
{
    std::size_t before;
    std::size_t after;
};

class Matching
{
public:
    Matching(const Lines& before, const Lines& after) : before_(before), after_(after) {}

    std::vector<Match> match()
    {
        matchEnds({0, before_.size(), 0, after_.size()},
                  [this](const Range& range) { matchBetweenUnique(range); });
        if (matches_.empty() || matches_.back().before + matches_.back().count < before_.size() ||
            matches_.back().after + matches_.back().count < after_.size())
        {
            matches_.push_back({before_.size(), after_.size(), 0});
        }
        return std::move(matches_);
    }

private:
    // Appends a line, to the last run if it follows that.
    void add(std::size_t before, std::size_t after)
    {
        if (!matches_.empty() && matches_.back().before + matches_.back().count == before &&
            matches_.back().after + matches_.back().count == after)
        {
            ++matches_.back().count;
            return;
        }
        matches_.push_back({before, after, 1});
    }

    // Matches what is the same at the start and at the end, and what is between that.
    template <typename MatchBetween>
    void matchEnds(Range range, MatchBetween matchBetween)
    {
        while (range.before < range.beforeEnd && range.after < range.afterEnd &&
               before_[range.before] == after_[range.after])
        {
            add(range.before++, range.after++);
        }
        const Range all = range;
        while (range.before < range.beforeEnd && range.after < range.afterEnd &&
               before_[range.beforeEnd - 1] == after_[range.afterEnd - 1])
        {
            --range.beforeEnd;
            --range.afterEnd;
        }
        matchBetween(range);
        for (std::size_t line = range.beforeEnd; line < all.beforeEnd; ++line)
        {
            add(line, line - range.beforeEnd + range.afterEnd);
        }
    }

    // Lines that occur once in each text say what corresponds in between.
    void matchBetweenUnique(const Range& range)
    {
        const auto best = [this](const Range& between) { matchBest(between); };
        Range part = range;
        for (const Pair& pair : ascending(uniquePairs(range)))
        {
            part.beforeEnd = pair.before;
            part.afterEnd = pair.after;
            matchEnds(part, best);
            add(pair.before, pair.after);
            part.before = pair.before + 1;
            part.after = pair.after + 1;
        }
        part.beforeEnd = range.beforeEnd;
        part.afterEnd = range.afterEnd;
        matchEnds(part, best);
    }

    // In the order of the text before.
    std::vector<Pair> uniquePairs(const Range& range) const
    {
        struct Places
        {
            unsigned before = 0; // how often
            unsigned after = 0;
            std::size_t line = 0; // in the text after
        };
        std::unordered_map<std::string_view, Places> places;
        for (std::size_t line = range.before; line < range.beforeEnd; ++line)
        {
            ++places[before_[line]].before;
        }
        for (std::size_t line = range.after; line < range.afterEnd; ++line)
        {
            Places& found = places[after_[line]];
            ++found.after;
            found.line = line;
        }
        std::vector<Pair> pairs;
        for (std::size_t line = range.before; line < range.beforeEnd; ++line)
        {
            const Places& found = places[before_[line]];
            if (found.before == 1 && found.after == 1)
            {
                pairs.push_back({line, found.line});
            }
        }
        return pairs;
    }

    // The longest series of pairs that ascend in both texts.
    static std::vector<Pair> ascending(const std::vector<Pair>& pairs)
    {
        constexpr auto none = static_cast<std::size_t>(-1);
        std::vector<std::size_t> last; // of the series of each length, the one that ends first
        std::vector<std::size_t> previous(pairs.size(), none);
        for (std::size_t at = 0; at < pairs.size(); ++at)
        {
            const auto place = std::lower_bound(last.begin(), last.end(), pairs[at].after,
                                                [&pairs](std::size_t pair, std::size_t line)
                                                { return pairs[pair].after < line; });
            previous[at] = place == last.begin() ? none : *std::prev(place);
            place == last.end() ? last.push_back(at) : void(*place = at);
        }
        std::vector<Pair> series;
        for (std::size_t at = last.empty() ? none : last.back(); at != none; at = previous[at])
        {
            series.push_back(pairs[at]);
        }
        std::reverse(series.begin(), series.end());
        return series;
    }

    // The most lines that correspond, if the range is small; else none.
    void matchBest(const Range& range)
    {
        constexpr std::size_t maxCells = 250000;
        const std::size_t rows = range.beforeEnd - range.before;
        const std::size_t columns = range.afterEnd - range.after;
        if (rows == 0 || columns == 0 || rows > maxCells / columns)
        {
            return;
        }
        // How many correspond from a pair of lines on.
        std::vector<unsigned> best((rows + 1) * (columns + 1));
        const auto at = [&best, columns](std::size_t row, std::size_t column) -> unsigned&
        { return best[row * (columns + 1) + column]; };
        const auto isSame = [&](std::size_t row, std::size_t column)
        { return before_[range.before + row] == after_[range.after + column]; };
        for (std::size_t row = rows; row-- > 0;)
        {
            for (std::size_t column = columns; column-- > 0;)
            {
                at(row, column) = isSame(row, column)
                                      ? at(row + 1, column + 1) + 1
                                      : std::max(at(row + 1, column), at(row, column + 1));
            }
        }
        for (std::size_t row = 0, column = 0; row < rows && column < columns;)
        {
            if (isSame(row, column))
            {
                add(range.before + row++, range.after + column++);
            }
            else
            {
                ++(at(row + 1, column) >= at(row, column + 1) ? row : column);
            }
        }
    }

    const Lines& before_;
    const Lines& after_;
    std::vector<Match> matches_;
};

} // namespace

std::vector<std::string_view> linesOf(std::string_view text)
{
    Lines lines;
    while (!text.empty())
    {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::vector<Match> matchLines(const Lines& before, const Lines& after)
{
    return Matching(before, after).match();
}

} // namespace tool::fixing
