#include "array_layout.h"

namespace tool::fixing
{
namespace
{

using Kind = PieceKind;

// The pieces between two that have a meaning.
struct Gap
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

// The open brackets of an array or an inline table.
struct Level
{
    bool isArray = false;
    std::size_t elements = 0; // before the last comma
    bool isAfterComma = false;
    std::size_t comma = 0; // the last one
    Gap beforeComma;
};

class ArrayLayout
{
public:
    explicit ArrayLayout(Draft& draft) : draft_(draft) {}

    void layOut()
    {
        for (std::size_t piece = 0; piece < draft_.size(); ++piece)
        {
            const Kind kind = draft_.kind(piece);
            if (kind == Kind::mark || (kind == Kind::newline && levels_.empty()))
            {
                lineBegin_ = piece + 1;
            }
            if (!isSpacing(kind))
            {
                visit(piece, kind);
                gapBegin_ = piece + 1;
            }
        }
    }

private:
    void visit(std::size_t piece, Kind kind)
    {
        if (kind == Kind::arrayComma)
        {
            Level& level = levels_.back();
            level.beforeComma = {gapBegin_, piece};
            level.comma = piece;
            level.isAfterComma = true;
            ++level.elements;
            return;
        }
        if (kind == Kind::arrayEnd || kind == Kind::tableEnd)
        {
            if (kind == Kind::arrayEnd)
            {
                close(levels_.back(), {gapBegin_, piece});
            }
            levels_.pop_back();
            return;
        }
        if (!levels_.empty() && levels_.back().isArray)
        {
            beginElement(levels_.back(), {gapBegin_, piece});
        }
        if (kind == Kind::arrayBegin || kind == Kind::tableBegin)
        {
            levels_.emplace_back();
            levels_.back().isArray = kind == Kind::arrayBegin;
        }
    }

    void beginElement(Level& level, Gap gap)
    {
        if (level.isAfterComma)
        {
            // After its second element, the grammar takes one run with the element and another
            // one with the comma.
            limit(level.beforeComma, level.elements == 1 ? 1 : 2);
        }
        limit(gap, 1);
        level.isAfterComma = false;
    }

    // The gap is the one before the closing bracket.
    void close(const Level& level, Gap gap)
    {
        if (!level.isAfterComma)
        {
            limit(gap, level.elements == 0 ? 0 : 1);
        }
        else if (level.elements == 1)
        {
            limit(level.beforeComma, 0);
            limit(gap, 0);
        }
        else if (newlineRuns(gap) > 0)
        {
            dropComma(level, gap);
            limit({level.beforeComma.begin, gap.end}, 1);
        }
        else
        {
            limit(level.beforeComma, 1);
        }
    }

    // Drops the last comma, and the line that consists of nothing else.
    void dropComma(const Level& level, Gap gap)
    {
        Gap line = {level.comma, level.comma + 1};
        while (line.begin > level.beforeComma.begin && isBlanks(line.begin - 1))
        {
            --line.begin;
        }
        while (line.end < gap.end && isBlanks(line.end))
        {
            ++line.end;
        }
        const bool isOnItsOwn = line.begin > level.beforeComma.begin && isNewline(line.begin - 1) &&
                                line.end < gap.end && isNewline(line.end);
        isOnItsOwn ? drop({line.begin, line.end + 1}) : draft_.drop(level.comma);
    }

    bool isBlanks(std::size_t piece) const { return draft_.kind(piece) == Kind::blanks; }

    bool isNewline(std::size_t piece) const
    {
        return draft_.kind(piece) == Kind::newline && !draft_.isDropped(piece);
    }

    // How many tokens the library makes of a gap's line breaks.
    std::size_t newlineRuns(Gap gap) const
    {
        std::size_t runs = 0;
        bool isInRun = false;
        for (std::size_t piece = gap.begin; piece < gap.end; ++piece)
        {
            if (!draft_.isDropped(piece))
            {
                runs += isNewline(piece) && !isInRun ? 1 : 0;
                isInRun = isNewline(piece);
            }
        }
        return runs;
    }

    // Leaves a gap with at most so many runs as it is, and others with at most one.
    void limit(Gap gap, std::size_t runs)
    {
        if (newlineRuns(gap) > runs)
        {
            runs == 0 ? clear(gap) : mergeRuns(gap);
        }
    }

    // Keeps what is before the first line break, and the line breaks.
    void mergeRuns(Gap gap)
    {
        std::size_t line = gap.end; // the first piece of the line, from the second line on
        bool isMoved = false;
        for (std::size_t piece = gap.begin; piece < gap.end; ++piece)
        {
            const Kind kind = draft_.kind(piece);
            if (draft_.isDropped(piece) || kind == Kind::blanks)
            {
                continue;
            }
            const std::size_t begin = line;
            if (kind == Kind::comment && begin < piece + 1)
            {
                move(piece, indentation(begin, piece));
                isMoved = true;
            }
            if (kind == Kind::newline)
            {
                line = piece + 1;
                if (isMoved)
                {
                    draft_.drop(piece);
                }
                isMoved = false;
            }
            drop({begin, piece});
        }
    }

    void clear(Gap gap)
    {
        std::size_t line = gap.end;
        for (std::size_t piece = gap.begin; piece < gap.end; ++piece)
        {
            if (draft_.kind(piece) == Kind::comment && !draft_.isDropped(piece))
            {
                move(piece, line <= piece ? indentation(line, piece) : indentation());
            }
            else if (draft_.kind(piece) == Kind::newline)
            {
                line = piece + 1;
            }
        }
        drop(gap);
    }

    void drop(Gap gap)
    {
        for (std::size_t piece = gap.begin; piece < gap.end; ++piece)
        {
            draft_.drop(piece);
        }
    }

    // The blanks of a line before a piece.
    std::string indentation(std::size_t line, std::size_t piece) const
    {
        std::string blanks;
        for (; line < piece; ++line)
        {
            blanks += draft_.isDropped(line) ? std::string_view() : draft_.original(line);
        }
        return blanks;
    }

    // That of the statement.
    std::string indentation() const
    {
        const bool isIndented = draft_.kind(lineBegin_) == Kind::blanks;
        return isIndented ? std::string(draft_.original(lineBegin_)) : std::string();
    }

    // Moves a comment before the statement, with the kind of line break that is after it.
    void move(std::size_t comment, std::string text)
    {
        text += draft_.original(comment);
        text += draft_.original(comment + 1);
        draft_.insertBefore(lineBegin_, std::move(text));
        draft_.drop(comment);
    }

    Draft& draft_;
    std::vector<Level> levels_;
    std::size_t gapBegin_ = 0;
    std::size_t lineBegin_ = 0;
};

} // namespace

void layOutArrays(Draft& draft)
{
    ArrayLayout(draft).layOut();
}

} // namespace tool::fixing
