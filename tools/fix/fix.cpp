#include "fix.h"

#include "array_layout.h"
#include "characters.h"
#include "diagnosis/characters.h"
#include "draft.h"
#include "high_comments.h"
#include "meaning.h"
#include "spelling.h"
#include "toml_reader.h"

namespace tool::fixing
{
namespace
{

using vorn::parsers::toml::Severity;
using vorn::parsers::toml::diagnosis::Character;
using vorn::parsers::toml::diagnosis::characterAt;
using vorn::parsers::toml::diagnosis::codeName;

constexpr const char* inexpressibleCode = "inexpressible";

bool isAccepted(const std::string& text)
{
    vorn::parsers::toml::DiagnosisOptions options;
    options.maxFindings = 1;
    const std::vector<Finding> findings = vorn::parsers::toml::diagnose(text, options);
    return findings.empty() || findings[0].severity != Severity::error;
}

Finding errorAt(std::size_t begin, std::size_t end, const char* code, std::string message,
                std::string hint)
{
    Finding finding;
    finding.begin = begin;
    finding.end = end;
    finding.code = code;
    finding.message = std::move(message);
    finding.hint = std::move(hint);
    return finding;
}

FixResult notToml(const std::string& text, const Mistake& mistake)
{
    const std::size_t length =
        mistake.offset < text.size() ? characterAt(text, mistake.offset).length : 1;
    return {FixOutcome::notToml,
            "",
            {errorAt(mistake.offset, mistake.offset + length, "not-toml",
                     "this is not TOML 1.0: " + mistake.message,
                     "Only documents that are TOML 1.0 can be fixed. Correct this first.")}};
}

Finding emptyBrackets(bool isArray, const Piece& closing)
{
    return errorAt(closing.begin, closing.end, inexpressibleCode,
                   isArray ? "an empty array cannot be expressed"
                           : "an empty inline table cannot be expressed",
                   isArray ? "Leave the key out instead, or put an element into the array."
                           : "Leave the key out instead, or write the header of a table.");
}

Finding highComment(std::string_view text, const Piece& comment)
{
    const std::size_t at = findHigh(text, comment.begin);
    const Character character = characterAt(text, at);
    return errorAt(at, at + character.length, inexpressibleCode,
                   "a character above U+FFFF (" + codeName(character.code) +
                       ") cannot be expressed in a comment",
                   "Remove it from the comment. --drop-comments removes all such comments.");
}

// What the library has no form for.
std::vector<Finding> inexpressible(const std::string& text, const std::vector<Piece>& pieces,
                                   const Draft& draft, const FixOptions& options)
{
    std::vector<Finding> findings;
    PieceKind before = PieceKind::mark;
    for (std::size_t at = 0; at < pieces.size(); ++at)
    {
        const PieceKind kind = pieces[at].kind;
        if ((kind == PieceKind::arrayEnd && before == PieceKind::arrayBegin) ||
            (kind == PieceKind::tableEnd && before == PieceKind::tableBegin))
        {
            findings.push_back(emptyBrackets(kind == PieceKind::arrayEnd, pieces[at]));
        }
        if (!options.dropsComments && isHighComment(draft, at))
        {
            findings.push_back(highComment(text, pieces[at]));
        }
        before = isSpacing(kind) ? before : kind;
    }
    return findings;
}

bool meansTheSame(const std::string& text, const std::vector<Piece>& pieces,
                  const std::string& result)
{
    MeaningVisitor visitor;
    return visitTomlTree(result, visitor) && visitor.meaning() == meaningOf(text, pieces);
}

} // namespace

FixResult fix(const std::string& text, const FixOptions& options)
{
    if (isAccepted(text))
    {
        return {FixOutcome::unchanged, "", {}};
    }
    const Reading reading = readToml(text);
    if (reading.mistake)
    {
        return notToml(text, *reading.mistake);
    }
    Draft draft(text, reading.pieces);
    if (std::vector<Finding> found = inexpressible(text, reading.pieces, draft, options);
        !found.empty())
    {
        return {FixOutcome::inexpressible, "", std::move(found)};
    }
    dropHighComments(draft);
    layOutArrays(draft);
    respell(draft);
    std::string result = draft.result();
    if (!meansTheSame(text, reading.pieces, result))
    {
        return {FixOutcome::failed, "", {}};
    }
    return {FixOutcome::fixed, std::move(result), {}};
}

} // namespace tool::fixing
