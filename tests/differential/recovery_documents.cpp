#include "recovery_documents.h"

#include "mutation.h"

namespace test
{
namespace
{

using namespace std::string_view_literals;

constexpr std::string_view valid[] = {
    "c = 3", "c = 3", "[t]", "[t.u]", "[[t]]", "a.b = 'x'", "# note", "", "", "  ", "\t",
    "d = [1, 2]", "e = {f = 1}", "g = [\n1,\n2]", "g = [\n  1,\n  2\n]", "h = [[1], [2,\n3]]",
    "i = \"\"\"\nx\n\"\"\"", "j = '''\n[t]\nb = [1\n'''", "k = 1979-05-27T07:32:00Z",
    "\tl = true # note", "'m' = \"caf\xC3\xA9\"",
    // As the runtime decodes them: bytes that the scanner leaves to the lexer.
    "# \xED\xA0\x80", "n = '\xED\xBF\xBF'", "\xC1\xA1 = 1", "n = '\xC1\xA1'", "n = 1 \xC0\xA3 note",
    "\xC1\x9B\x74]", "n \xC0\xBD 1", "c = 3\xC0\x8A[t]", "# note\xC0\x8A\x63 = 3",
    "n = \xC0\xA2x\xC0\xA2"};

constexpr std::string_view mistaken[] = {
    // Not closed, or closed without being open.
    "b = [1", "b = [1", "b = [1,", "b = [", "b = [[1, [2", "b = [1, {c = 2", "b = {c = 1",
    "b = {c = [1", "b = {c = [1}", "b = {", "b = [{c = {d = [1", "1, 2]", "]", "]]", "}", "}]",
    "c = 1}", "c = 1]", ", 3", "2,", "b = [1}", "b = {c = 1]",
    // Headers.
    "[t", "[[t]", "[[t", "[t]]", "[", "[[", "[]", "[[]]", "[t] b = 1", "[t.]", "[t u]", "[1]",
    // Pairs.
    "a", "a.", "a =", "a.b", "= 1", "a = = 1", "a 1", "a = 1 2", "a = b", "a = [1 2]",
    "a = [1,, 2]", "a = []", "a = {}", "a = {b = 1,}", "a = [1\n]", "a = {b = 1\n}", "1 = 2",
    "true = 1", "1.5",
    // Texts that are no tokens.
    "a = 'x", "a = \"x", "a = \"\"\"x", "a = '''x", "\"\"\"", "'''", "\"", "'", "a = \"\\q\"", "@",
    "@@", "a = @", "@ = 1", "a = 1979-05-27 # note", "a = 1.", "a = 07:32", "\xEF\xBB\xBF",
    "a = '\xFF'", "\xC3", "\0"sv, "a = 1\0"sv, "# \xF0\x9F\x98\x80", "\xC1\x3F", "a = 1 \xC3\xA9",
    "a = \xC0\xA2x", "a = 'x\xC0\x8Ay'", "# \xC0\x8A\x61"};

constexpr std::string_view lineEnds[] = {
    "\n",      "\n",           "\n",     "\n",       "\n",     "\n",       "\n",
    "\n",      "\r\n",         "\r\n",   "\n\r\n",   "\n\r",   "\r",       "\r\r\n",
    "\n\n",    "\n \n",        "\n\t\n", "\n\r\n\r", "\r\n\r", " # c\n",   " # c\r\n",
    "\n# c\n", "\n# c\n# d\n", "",       " ",        "#\n",    "\xC0\x8A", "\xC0\x8D\n"};

} // namespace

std::string RecoveryDocumentGenerator::next()
{
    static constexpr std::size_t chances[] = {1, 2, 4, 10, 40};
    const std::size_t chance = chances[random_.below(5)];
    const std::size_t lines = random_.between(1, random_.oneIn(2) ? 6 : 40);
    const bool areWalked = random_.oneIn(8);
    const bool firstIsMistaken = random_.oneIn(4);
    const bool lastIsMistaken = random_.oneIn(4);
    std::string document = random_.oneIn(20) ? "\xEF\xBB\xBF" : "";
    for (std::size_t line = 0; line < lines; ++line)
    {
        const bool isMistaken = (line == 0 && firstIsMistaken) ||
                                (line + 1 == lines && lastIsMistaken) || random_.oneIn(chance);
        document += !isMistaken ? validLine() : areWalked ? walkedLine(random_) : mistakenLine();
    }
    if (random_.oneIn(4))
    {
        document.erase(document.find_last_not_of("\r\n") + 1);
    }
    if (random_.oneIn(4))
    {
        mutate(document, random_.below(document.size() + 1), random_, tokens_);
    }
    return document;
}

std::string RecoveryDocumentGenerator::validLine()
{
    // These may be long.
    if (random_.oneIn(6))
    {
        return documents_.validLine();
    }
    const std::string line(random_.oneOf(valid));
    return line + std::string(random_.oneIn(4) ? random_.oneOf(lineEnds) : "\n");
}

std::string RecoveryDocumentGenerator::mistakenLine()
{
    switch (random_.below(8))
    {
    case 0:
        return enclosedLines();
    case 1:
        return mistakenLines(random_, tokens_);
    default:
        break;
    }
    const std::string line = tokens_.blanks() + std::string(random_.oneOf(mistaken));
    return line + std::string(random_.oneIn(2) ? random_.oneOf(lineEnds) : "\n");
}

// Statements within brackets, as if one had been forgotten further up.
std::string RecoveryDocumentGenerator::enclosedLines()
{
    static constexpr std::string_view openings[] = {"b = [", "b = [1,", "b = {", "b = [{c = ["};
    static constexpr std::string_view closings[] = {"]", "]]", "}", "]}]", ""};
    std::string text = std::string(random_.oneOf(openings)) + '\n';
    for (std::size_t count = random_.between(1, 3); count > 0; --count)
    {
        text += validLine();
    }
    return text + std::string(random_.oneOf(closings)) + '\n';
}

} // namespace test
