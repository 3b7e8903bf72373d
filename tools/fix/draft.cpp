#include "draft.h"

namespace tool::fixing
{

Draft::Draft(std::string_view text, const std::vector<Piece>& pieces)
    : text_(text), pieces_(pieces), changes_(pieces.size())
{
}

std::string_view Draft::original(std::size_t piece) const
{
    const Piece& found = pieces_[piece];
    return text_.substr(found.begin, found.end - found.begin);
}

void Draft::replace(std::size_t piece, std::string text)
{
    replacements_.push_back(std::move(text));
    changes_[piece] = replacements_.size();
}

void Draft::insertBefore(std::size_t piece, std::string text)
{
    insertions_.emplace_back(piece, std::move(text));
}

std::string Draft::result() const
{
    std::string result;
    result.reserve(text_.size());
    auto insertion = insertions_.begin();
    for (std::size_t piece = 0; piece <= size(); ++piece)
    {
        for (; insertion != insertions_.end() && insertion->first == piece; ++insertion)
        {
            result += insertion->second;
        }
        if (piece < size() && !isDropped(piece))
        {
            const std::size_t change = changes_[piece];
            result += change > 0 ? std::string_view(replacements_[change - 1]) : original(piece);
        }
    }
    return result;
}

} // namespace tool::fixing
