// The pieces that a document of TOML 1.0 consists of.  Together they are the whole document.
#pragma once

#include <cstddef>

namespace tool::fixing
{

enum class PieceKind : unsigned char
{
    mark, // a byte order mark
    blanks,
    comment,
    newline, // a single one
    bareKey, // a part of a key
    basicKey,
    literalKey,
    dot,
    equals,
    headerBegin,
    headerEnd,
    arrayHeaderBegin, // both brackets
    arrayHeaderEnd,
    basicString,
    multilineBasicString,
    literalString,
    multilineLiteralString,
    integer,
    floatingPoint,
    boolean,
    offsetDateTime,
    localDateTime,
    localDate,
    localTime,
    arrayBegin,
    arrayComma,
    arrayEnd,
    tableBegin, // of an inline table
    tableComma,
    tableEnd,
};

struct Piece
{
    PieceKind kind;
    std::size_t begin; // offsets
    std::size_t end;
};

// What has no meaning of its own.
constexpr bool isSpacing(PieceKind kind)
{
    return kind == PieceKind::blanks || kind == PieceKind::comment || kind == PieceKind::newline;
}

} // namespace tool::fixing
