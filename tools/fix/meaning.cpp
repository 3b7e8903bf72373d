#include "meaning.h"

#include "string_content.h"

namespace tool::fixing
{
namespace
{

using Kind = PieceKind;

// Appends an event: the kind of piece that stands for all that mean the same, and its content.
void append(std::string& meaning, Kind kind, std::string_view content = "")
{
    meaning += static_cast<char>('0' + static_cast<int>(kind));
    meaning += std::to_string(content.size());
    meaning += ':';
    meaning += content;
}

void appendOffsetDateTime(std::string& meaning, std::string_view text)
{
    std::string normal(text);
    if (!normal.empty() && normal.back() == 'z')
    {
        normal.back() = 'Z';
    }
    append(meaning, Kind::offsetDateTime, normal);
}

void appendPiece(std::string& meaning, Kind kind, std::string_view text)
{
    switch (kind)
    {
    case Kind::basicKey:
    case Kind::literalKey:
        append(meaning, Kind::bareKey, contentOf(text));
        break;
    case Kind::basicString:
    case Kind::multilineBasicString:
    case Kind::literalString:
    case Kind::multilineLiteralString:
        append(meaning, Kind::basicString, contentOf(text));
        break;
    case Kind::offsetDateTime:
        appendOffsetDateTime(meaning, text);
        break;
    case Kind::bareKey:
    case Kind::integer:
    case Kind::floatingPoint:
    case Kind::boolean:
    case Kind::localDateTime:
    case Kind::localDate:
    case Kind::localTime:
        append(meaning, kind, text);
        break;
    case Kind::headerBegin:
    case Kind::headerEnd:
    case Kind::arrayHeaderBegin:
    case Kind::arrayHeaderEnd:
    case Kind::arrayBegin:
    case Kind::arrayEnd:
    case Kind::tableBegin:
    case Kind::tableEnd:
        append(meaning, kind);
        break;
    default: // where pairs and elements end follows from the others
        break;
    }
}

} // namespace

std::string meaningOf(std::string_view text, const std::vector<Piece>& pieces)
{
    std::string meaning;
    for (const Piece& piece : pieces)
    {
        appendPiece(meaning, piece.kind, text.substr(piece.begin, piece.end - piece.begin));
    }
    return meaning;
}

void MeaningVisitor::beginTable()
{
    append(meaning_, Kind::headerBegin);
}

void MeaningVisitor::endTable()
{
    append(meaning_, Kind::headerEnd);
}

void MeaningVisitor::beginArrayTable()
{
    append(meaning_, Kind::arrayHeaderBegin);
}

void MeaningVisitor::endArrayTable()
{
    append(meaning_, Kind::arrayHeaderEnd);
}

void MeaningVisitor::visitBareKey(const char* text)
{
    append(meaning_, Kind::bareKey, text);
}

void MeaningVisitor::visitQuotedKey(const char* text)
{
    append(meaning_, Kind::bareKey, contentOf(text));
}

void MeaningVisitor::beginArray()
{
    append(meaning_, Kind::arrayBegin);
}

void MeaningVisitor::endArray()
{
    append(meaning_, Kind::arrayEnd);
}

void MeaningVisitor::beginInlineTable()
{
    append(meaning_, Kind::tableBegin);
}

void MeaningVisitor::endInlineTable()
{
    append(meaning_, Kind::tableEnd);
}

void MeaningVisitor::visitBasicString(const char* text)
{
    append(meaning_, Kind::basicString, contentOf(text));
}

void MeaningVisitor::visitMultilineBasicString(const char* text)
{
    append(meaning_, Kind::basicString, contentOf(text));
}

void MeaningVisitor::visitLiteralString(const char* text)
{
    append(meaning_, Kind::basicString, contentOf(text));
}

void MeaningVisitor::visitMultilineLiteralString(const char* text)
{
    append(meaning_, Kind::basicString, contentOf(text));
}

void MeaningVisitor::visitInteger(const char* text)
{
    append(meaning_, Kind::integer, text);
}

void MeaningVisitor::visitFloat(const char* text)
{
    append(meaning_, Kind::floatingPoint, text);
}

void MeaningVisitor::visitBoolean(const char* text)
{
    append(meaning_, Kind::boolean, text);
}

void MeaningVisitor::visitOffsetDateTime(const char* text)
{
    appendOffsetDateTime(meaning_, text);
}

void MeaningVisitor::visitLocalDateTime(const char* text)
{
    append(meaning_, Kind::localDateTime, text);
}

void MeaningVisitor::visitLocalDate(const char* text)
{
    append(meaning_, Kind::localDate, text);
}

void MeaningVisitor::visitLocalTime(const char* text)
{
    append(meaning_, Kind::localTime, text);
}

} // namespace tool::fixing
