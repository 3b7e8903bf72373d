// The documents that readers are compared on.
#include <gtest/gtest.h>

#include "bench/documents.h"

#include <vorn/parsers/toml.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "support/log_recorder.h"

namespace
{

const std::vector<bench::Document>& documents()
{
    static const std::vector<bench::Document> all = bench::documents();
    return all;
}

} // namespace

TEST(BenchDocuments, areOfEachKindInEachSize)
{
    std::map<std::string, std::size_t> expected = {{"mixed/10MB", 10'000'000}};
    for (const std::string kind :
         {"services", "long-strings", "number-arrays", "small-tables", "dates", "random-tables"})
    {
        expected[kind + "/1KB"] = 1'000;
        expected[kind + "/100KB"] = 100'000;
        expected[kind + "/1MB"] = 1'000'000;
    }
    std::map<std::string, std::size_t> sizes;
    for (const bench::Document& document : documents())
    {
        sizes[document.name] = document.size;
    }
    EXPECT_EQ(sizes, expected);
    EXPECT_EQ(documents().size(), expected.size());
}

TEST(BenchDocuments, haveTheSizeThatTheyClaim)
{
    for (const auto& [name, size, text] : documents())
    {
        const std::size_t difference = text.size() > size ? text.size() - size : size - text.size();
        EXPECT_LE(difference, size / 5) << name << " has " << text.size() << " bytes";
        EXPECT_TRUE(size < 100'000 || difference <= size / 100)
            << name << " has " << text.size() << " bytes";
    }
}

TEST(BenchDocuments, areAccepted)
{
    for (const bench::Document& document : documents())
    {
        const test::LogRecorder log;
        vorn::parsers::toml::TomlTreeVisitor visitor;
        // The smallest comes first: what is wrong with a large one takes long to report.
        ASSERT_TRUE(vorn::parsers::toml::visitTomlTree(document.text, visitor)) << document.name;
        EXPECT_TRUE(log.lines().empty()) << document.name;
    }
}
