#include "growth_documents.h"

#include "service_text.h"
#include "tests/support/large_documents.h"

namespace bench
{
namespace
{

// Made in place: a copy on the way would hide what is taken afterwards.
std::string mixedThen(std::size_t size, const std::string& after)
{
    const std::string lines = test::mixedDocument(0);
    return test::enclosed("", lines, size / lines.size() + 1, after);
}

// Services around a line.
std::string servicesAround(std::size_t sizeBefore, const std::string& line, std::size_t sizeAfter)
{
    std::string text;
    unsigned number = 0;
    const auto appendServices = [&](std::size_t end)
    {
        while (text.size() < end)
        {
            text += serviceText(number++);
        }
    };
    appendServices(sizeBefore);
    text += line;
    appendServices(text.size() + sizeAfter);
    return text;
}

void appendMistake(std::vector<Document>& documents, const std::string& kind,
                   const std::string& line)
{
    const std::string name = kind + ", `" + line + "`, ";
    const std::string text = line + '\n';
    const std::size_t size = 100 * kilobyte;
    documents.push_back({name + "first line", false, size,
                         [text](std::size_t all) { return servicesAround(0, text, all); }});
    documents.push_back({name + "middle", false, size, [text](std::size_t all) {
                             return servicesAround(all / 2, text, all / 2);
                         }});
    documents.push_back({name + "last line", false, size,
                         [text](std::size_t all) { return servicesAround(all, text, 0); }});
}

} // namespace

std::vector<Document> growingDocuments()
{
    return {
        {"lines of all kinds", true, 4 * megabyte, test::mixedDocument},
        {"one long string", true, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("a = \"", "x", size, "\"\n"); }},
        {"one long key", true, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("", "x", size, " = 1\n"); }},
        {"one long array", true, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("a = [", "1,", size / 2, "1]\n"); }},
        {"one key of many parts", true, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("a", ".a", size / 2, " = 1\n"); }},
        {"bad lines, `a 1`", false, 100 * kilobyte,
         [](std::size_t size) { return test::repeated("a 1\n", size / 4); }},
        {"bad characters, `@`", false, 100 * kilobyte,
         [](std::size_t size) { return test::repeated("@", size); }},
        {"lines of all kinds, then `@`", false, 250 * kilobyte,
         [](std::size_t size) { return mixedThen(size, "@"); }},
        {"one long string, not closed", false, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("a = \"", "x", size, "\n"); }},
        {"one long key, without a value", false, 4 * megabyte,
         [](std::size_t size) { return test::enclosed("", "x", size, "\n"); }},
        {"one long array, not closed", false, 100 * kilobyte,
         [](std::size_t size) { return test::enclosed("a = [", "1,", size / 2, "1\n"); }},
        {"one key of many parts, without a value", false, 100 * kilobyte,
         [](std::size_t size) { return test::enclosed("a", ".a", size / 2, "\n"); }},
    };
}

std::vector<Document> hostileDocuments()
{
    return {
        {"`a`, 4,000 dots, `=1`", false, 4'003,
         [](std::size_t) { return test::enclosed("a", ".", 4'000, "=1"); }},
        {"4,000 lines `a 1`", false, 16'000,
         [](std::size_t) { return test::repeated("a 1\n", 4'000); }},
        {"12,000 `[`", false, 12'000, [](std::size_t) { return test::repeated("[", 12'000); }},
        {"12,000 `{a=`", false, 36'000, [](std::size_t) { return test::repeated("{a=", 12'000); }},
        {"`a=`, 12,000 `[`", false, 12'002,
         [](std::size_t) { return test::enclosed("a=", "[", 12'000, ""); }},
        {"`a=`, 12,000 `{a=`", false, 36'002,
         [](std::size_t) { return test::enclosed("a=", "{a=", 12'000, ""); }},
    };
}

std::vector<Document> largestDocuments()
{
    return {
        {"one string", true, 100 * megabyte,
         [](std::size_t size) { return test::enclosed("a = '", "x", size - 7, "'\n"); }},
        {"one key", true, 100 * megabyte,
         [](std::size_t size) { return test::enclosed("", "x", size - 5, " = 1\n"); }},
        {"one comment", true, 100 * megabyte,
         [](std::size_t size) { return test::enclosed("# ", "x", size - 3, "\n"); }},
        {"a million tables", true, 10 * megabyte,
         [](std::size_t size) { return test::repeated("[a.table]\n", size / 10); }},
        {"lines `a 1`", false, megabyte,
         [](std::size_t size) { return test::repeated("a 1\n", size / 4); }},
        {"lines `a = {}`", false, megabyte,
         [](std::size_t size) { return test::repeated("a = {}\n", size / 7); }},
        {"lines `'`", false, megabyte,
         [](std::size_t size) { return test::repeated("'\n", size / 2); }},
        {"`@`", false, megabyte, [](std::size_t size) { return test::repeated("@", size); }},
        {"`=`", false, megabyte, [](std::size_t size) { return test::repeated("=", size); }},
    };
}

std::vector<Document> documentsWithMistakes()
{
    std::vector<Document> documents;
    appendMistake(documents, "after a value", "b = 1 2");
    appendMistake(documents, "in a key", "a b = 1");
    appendMistake(documents, "in an array", "a = [1 2]");
    appendMistake(documents, "in a string", R"(a = "x\q")");
    appendMistake(documents, "a bad character", "a = @");
    documents.push_back({"in an array, `a = [1 2]`, last line", false, 10 * megabyte,
                         [](std::size_t size) { return servicesAround(size, "a = [1 2]\n", 0); }});
    for (const std::string line : {"a 1", "a = {}", "'"})
    {
        documents.push_back({"all lines `" + line + "`", false, 100 * kilobyte,
                             [line](std::size_t size)
                             { return test::repeated(line + '\n', size / (line.size() + 1)); }});
    }
    documents.push_back(
        {"`a=` and two line breaks", false, 4, [](std::size_t) { return std::string("a=\n\n"); }});
    return documents;
}

Document validDocument(std::size_t size)
{
    return size > 4 ? Document{"services", true, size,
                               [](std::size_t all) { return servicesAround(all, "", 0); }}
                    : Document{"`a=1`", true, size, [](std::size_t) { return "a=1\n"; }};
}

std::vector<Document> mistakenDocuments()
{
    return {
        {"lines of all kinds, then `a = []`", false, 10 * megabyte,
         [](std::size_t size) { return mixedThen(size, "a = []\n"); }},
        {"lines `[a`", false, 1600 * kilobyte,
         [](std::size_t size) { return test::repeated("[a\n", size / 3); }},
        {"lines `a 1`", false, 10 * megabyte,
         [](std::size_t size) { return test::repeated("a 1\n", size / 4); }},
        {"`@`", false, 10 * megabyte, [](std::size_t size) { return test::repeated("@", size); }},
        {"one long array, not closed", false, 10 * megabyte,
         [](std::size_t size) { return test::enclosed("a = [", "1,", size / 2, "1\n"); }},
        {"one long string, not closed", false, 10 * megabyte,
         [](std::size_t size) { return test::enclosed("a = \"", "x", size, "\n"); }},
        {"`a=`, then `[`", false, 10 * megabyte,
         [](std::size_t size) { return test::enclosed("a=", "[", size, ""); }},
    };
}

} // namespace bench
