#include "strict_mistakes_of.h"

#include <gtest/gtest.h>

#include "diagnosis/strict_sink.h"
#include "direct/reader.h"
#include "scan/utf8.h"

using namespace vorn::parsers::toml;

namespace test
{
namespace
{

// Reads what can be read, statement by statement; one that cannot be ends with its line.
template <typename Sink>
bool readStatements(const std::string& text, Sink& sink)
{
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(text.size()));
    const char* const end = text.data() + text.size();
    const char* begin = text.data() + byteOrderMarkLength(text);
    bool isRead = true;
    for (;;)
    {
        NestingStack nesting(words.data(), text.size());
        sink.position = begin;
        if (Reader(begin, end, nesting, sink).lines())
        {
            return isRead;
        }
        isRead = false;
        sink.statementSkipped();
        // The skipped statement starts after empty lines.
        const auto statement =
            text.find_first_not_of("\r\n", static_cast<std::size_t>(sink.position - text.data()));
        const auto stop = text.find('\n', statement);
        if (stop == std::string::npos)
        {
            return isRead;
        }
        begin = text.data() + stop;
    }
}

// Remembers where the last valid statement ended.
struct Positioned : diagnosis::StrictSink
{
    using StrictSink::StrictSink;
    void lineEnd(const char* at)
    {
        position = at;
        StrictSink::lineEnd(at);
    }
    const char* position = nullptr;
};

std::string place(const std::string& text, std::size_t begin, std::size_t end)
{
    return std::to_string(begin) + ' ' + text.substr(begin, end - begin);
}

} // namespace

std::vector<diagnosis::Mistake> strictMistakes(const std::string& text, std::size_t max)
{
    Positioned sink(text, max);
    readStatements(text, sink);
    return sink.takeMistakes();
}

bool isRead(const std::string& text)
{
    Positioned sink(text, 0);
    return readStatements(text, sink);
}

std::string shown(const std::string& text, const std::vector<diagnosis::Mistake>& mistakes)
{
    std::string lines;
    for (const diagnosis::Mistake& mistake : mistakes)
    {
        lines += std::string(mistake.code) + " at " + place(text, mistake.begin, mistake.end);
        for (const diagnosis::Origin& origin : mistake.origins)
        {
            lines += ", first at " + place(text, origin.begin, origin.end);
        }
        lines += '\n';
    }
    return lines;
}

void expectStrict(const std::vector<StrictCase>& cases)
{
    for (const StrictCase& one : cases)
    {
        SCOPED_TRACE(testing::PrintToString(one.text));
        EXPECT_TRUE(isRead(one.text));
        EXPECT_EQ(shown(one.text, strictMistakes(one.text)), one.mistakes);
    }
}

} // namespace test
