#include "high_comments.h"

#include "characters.h"

namespace tool::fixing
{
namespace
{

void dropComment(Draft& draft, std::size_t comment)
{
    draft.drop(comment);
    std::size_t line = comment;
    if (line > 0 && draft.kind(line - 1) == PieceKind::blanks)
    {
        draft.drop(--line);
    }
    const bool isOnItsOwn = line == 0 || draft.kind(line - 1) == PieceKind::newline ||
                            draft.kind(line - 1) == PieceKind::mark;
    if (isOnItsOwn && comment + 1 < draft.size())
    {
        draft.drop(comment + 1);
    }
}

} // namespace

bool isHighComment(const Draft& draft, std::size_t piece)
{
    return draft.kind(piece) == PieceKind::comment && hasHigh(draft.original(piece));
}

void dropHighComments(Draft& draft)
{
    for (std::size_t piece = 0; piece < draft.size(); ++piece)
    {
        if (isHighComment(draft, piece))
        {
            dropComment(draft, piece);
        }
    }
}

} // namespace tool::fixing
