#include <algorithm>
#include <cstdio>

#include <vorn/parsers/toml.h>

#include "commands.h"
#include "diagnosis/characters.h"
#include "diagnosis/kind_name.h"
#include "diagnosis/source_lines.h"
#include "diagnosis/token_reader.h"
#include "each_file.h"
#include "printed.h"

namespace tool
{
namespace
{

using namespace vorn::parsers::toml::diagnosis;
using vorn::parsers::toml::TokenType;

void printLine(const SourcePlace& place, std::string_view kind, std::string_view text)
{
    const std::string position = std::to_string(place.line) + ':' + std::to_string(place.column);
    const int width = text.empty() ? 0 : 26;
    std::printf("%-8s %-*s", position.c_str(), width, std::string(kind).c_str());
    if (!text.empty())
    {
        std::fputc(' ', stdout);
        printEscaped(stdout, text);
    }
    std::fputc('\n', stdout);
}

// Places come in order, so columns need not be counted from the start of the line each time.
class Places
{
public:
    explicit Places(std::string_view text) : text_(text), lines_(text) {}

    SourcePlace placeOf(std::size_t offset)
    {
        const std::size_t line = lines_.lineOf(offset);
        const std::size_t begin = std::min(lines_.beginOf(line), offset);
        if (line != last_.line)
        {
            last_ = {line, 1};
            at_ = begin;
        }
        last_.column += countCharacters(text_.substr(at_, offset - at_));
        at_ = offset;
        return last_;
    }

private:
    std::string_view text_;
    SourceLines lines_;
    SourcePlace last_ = {0, 1};
    std::size_t at_ = 0;
};

// Prints the tokens, and what is not a token between them.
void list(const std::string& text)
{
    Places places(text);
    TokenReader reader(text, 0, TokenReader::Errors::all);
    std::size_t printed = 0;
    const auto printErrors = [&]
    {
        for (; printed < reader.errors().size(); ++printed)
        {
            const LexicalError& error = reader.errors()[printed];
            const std::size_t stop = std::clamp(error.resumed, error.begin, text.size());
            printLine(places.placeOf(error.begin), "(no token)",
                      std::string_view(text).substr(error.begin, stop - error.begin));
        }
    };
    DocumentToken token = reader.next();
    for (; token.type != TokenType::endOfInput; token = reader.next())
    {
        printErrors();
        printLine(places.placeOf(token.begin), kindName(token.type),
                  std::string_view(text).substr(token.begin, token.end - token.begin));
    }
    printErrors();
    printLine(places.placeOf(token.begin), "end of the file", "");
}

Status listTokens(const std::string& name, Progress& progress, const Options& options)
{
    const std::optional<std::string> text = readInput(name, progress);
    if (!text)
    {
        return unreadable;
    }
    progress.work(text->size());
    vorn::parsers::toml::TomlTreeVisitor visitor;
    const Examination examination = examine(*text, visitor);
    progress.clear();
    list(*text);
    explain(name, *text, examination, options);
    return examination.status;
}

} // namespace

Status printTokens(const Options& options)
{
    return eachFile(options, !isOutputTerminal(),
                    [&](const std::string& name, Progress& progress)
                    { return listTokens(name, progress, options); });
}

} // namespace tool
