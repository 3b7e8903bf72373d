#include "spelling.h"

#include "scan/scanner.h"

#include "string_respelling.h"

namespace tool::fixing
{
namespace
{

using Kind = PieceKind;

// Whether the library reads a bare key as one, with what comes after it in the document.
bool isReadAsKey(std::string_view key, std::string_view text)
{
    using namespace vorn::parsers::toml;
    const Token token = scanToken(key.data(), text.data() + text.size());
    return token.type == TokenType::bareKey && token.end == key.data() + key.size();
}

std::string quoted(std::string_view key)
{
    return '"' + std::string(key) + '"';
}

std::size_t nextLeft(const Draft& draft, std::size_t piece)
{
    while (piece < draft.size() && draft.isDropped(piece))
    {
        ++piece;
    }
    return piece;
}

// The library takes a blank after a date for the one before a time.
void separateFromDate(Draft& draft, std::size_t date)
{
    std::size_t next = nextLeft(draft, date + 1);
    if (next == draft.size() || draft.original(next).front() != ' ')
    {
        return;
    }
    // Where a comma is gone there are blanks after blanks.
    std::size_t blanks = next;
    while (next < draft.size() && draft.kind(next) == Kind::blanks)
    {
        blanks = next;
        draft.drop(next);
        next = nextLeft(draft, next);
    }
    if (next < draft.size() && draft.kind(next) == Kind::comment)
    {
        draft.replace(blanks, "\t");
    }
}

void respellOffset(Draft& draft, std::size_t piece)
{
    std::string text(draft.original(piece));
    if (text.back() == 'z')
    {
        text.back() = 'Z';
        draft.replace(piece, std::move(text));
    }
}

void respellPiece(Draft& draft, std::size_t piece, std::string_view text)
{
    switch (draft.kind(piece))
    {
    case Kind::bareKey:
        if (!isReadAsKey(draft.original(piece), text))
        {
            draft.replace(piece, quoted(draft.original(piece)));
        }
        break;
    case Kind::basicKey:
    case Kind::literalKey:
    case Kind::basicString:
    case Kind::multilineBasicString:
    case Kind::literalString:
    case Kind::multilineLiteralString:
        if (std::optional<std::string> respelled = respelledString(draft.original(piece)))
        {
            draft.replace(piece, std::move(*respelled));
        }
        break;
    case Kind::offsetDateTime:
        respellOffset(draft, piece);
        break;
    case Kind::localDate:
        separateFromDate(draft, piece);
        break;
    default:
        break;
    }
}

// Whether the last line has a pair or a header, and no line break.
bool isLastLineOpen(const Draft& draft)
{
    for (std::size_t piece = draft.size(); piece > 0; --piece)
    {
        if (draft.isDropped(piece - 1))
        {
            continue;
        }
        const Kind kind = draft.kind(piece - 1);
        if (!isSpacing(kind) || kind == Kind::newline)
        {
            return kind != Kind::newline && kind != Kind::mark;
        }
    }
    return false;
}

// A line break like the document's last one.
std::string newlineLike(std::string_view text)
{
    const std::size_t last = text.rfind('\n');
    const bool isOfTwo = last != std::string_view::npos && last > 0 && text[last - 1] == '\r';
    return isOfTwo ? "\r\n" : "\n";
}

} // namespace

void respell(Draft& draft)
{
    const std::string_view text = draft.text();
    for (std::size_t piece = 0; piece < draft.size(); ++piece)
    {
        if (!draft.isDropped(piece))
        {
            respellPiece(draft, piece, text);
        }
    }
    if (isLastLineOpen(draft))
    {
        draft.append(newlineLike(text));
    }
}

} // namespace tool::fixing
