// strict_differential COUNT SEED: writes documents made at random, each with what is found in it,
// for strict_differential_test.py.
//
// A record is two texts, the document and the codes of what is found, one a line, each after its
// size in four bytes, the lowest first.  The code "unread" is that of a statement that cannot
// be read.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "diagnosis/strict_bytes.h"
#include "strict_documents.h"
#include "strict_mistakes_of.h"

namespace
{

void write(const std::string& text)
{
    for (unsigned shift = 0; shift < 32; shift += 8)
    {
        std::putchar(static_cast<int>(text.size() >> shift & 0xFF));
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
}

std::string codesOf(const std::string& text)
{
    std::string codes = test::isRead(text) ? "" : "unread\n";
    for (const auto& mistake : test::strictMistakes(text))
    {
        codes += std::string(mistake.code) + '\n';
    }
    for (const auto& mistake : vorn::parsers::toml::diagnosis::findForbiddenBytes(text, 0))
    {
        codes += std::string(mistake.code) + '\n';
    }
    return codes;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3)
    {
        return 2;
    }
    test::StrictDocuments documents(std::strtoull(arguments[2], nullptr, 10));
    for (auto left = std::strtoull(arguments[1], nullptr, 10); left > 0; --left)
    {
        const std::string text = documents.next();
        write(text);
        write(codesOf(text));
    }
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
