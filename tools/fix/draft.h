// A document that is being rewritten, piece by piece.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "piece.h"

namespace tool::fixing
{

class Draft
{
public:
    // The text and the pieces stay where they are.
    Draft(std::string_view text, const std::vector<Piece>& pieces);

    std::size_t size() const { return pieces_.size(); }
    PieceKind kind(std::size_t piece) const { return pieces_[piece].kind; }
    bool isDropped(std::size_t piece) const { return changes_[piece] == dropped; }

    // The document, and a piece of it, as they were at first.
    std::string_view text() const { return text_; }
    std::string_view original(std::size_t piece) const;

    void drop(std::size_t piece) { changes_[piece] = dropped; }
    void replace(std::size_t piece, std::string text);

    // The pieces of one call do not come before those of an earlier one.
    void insertBefore(std::size_t piece, std::string text);
    void append(std::string text) { insertBefore(size(), std::move(text)); }

    std::string result() const;

private:
    // For each piece what becomes of it: nothing, a replacement's number, or this.
    static constexpr std::size_t dropped = static_cast<std::size_t>(-1);

    std::string_view text_;
    const std::vector<Piece>& pieces_;
    std::vector<std::size_t> changes_;
    std::vector<std::string> replacements_; // counted from 1
    std::vector<std::pair<std::size_t, std::string>> insertions_;
};

} // namespace tool::fixing
