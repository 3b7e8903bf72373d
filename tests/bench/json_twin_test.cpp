// The twins that parsers of JSON read.
#include <gtest/gtest.h>

#include "bench/documents.h"
#include "bench/json_twin.h"

#include <nlohmann/json.hpp>

#include <stdexcept>

#include "support/log_recorder.h"

TEST(BenchJsonTwin, hasTheSameContentWithoutBlanks)
{
    EXPECT_EQ(bench::jsonTwin(""), "{}");
    EXPECT_EQ(bench::jsonTwin("b = 9_000\na = [ 0.5, true, \"x\\t\" ] # c\n"),
              R"({"b":9000,"a":[0.5,true,"x\t"]})");
    EXPECT_EQ(bench::jsonTwin("l = { day = 1979-05-27, 'k k' = 07:32:00 }\nx.y = 'C:\\'\n"),
              R"({"l":{"day":"1979-05-27","k k":"07:32:00"},"x":{"y":"C:\\"}})");
}

TEST(BenchJsonTwin, nestsTheTablesOfHeaders)
{
    EXPECT_EQ(bench::jsonTwin("[[s]]\na.b = 1\n[s.t]\n[[s]]\n[s.t]\nc = 2\n[u.v]\n"),
              R"({"s":[{"a":{"b":1},"t":{}},{"t":{"c":2}}],"u":{"v":{}}})");
}

TEST(BenchJsonTwin, isNotMadeOfARejectedDocument)
{
    const test::LogRecorder log;
    EXPECT_THROW(bench::jsonTwin("a = \n"), std::runtime_error);
}

TEST(BenchJsonTwin, lacksOnlyBlanksCommentsAndHeaders)
{
    constexpr std::size_t largest = 100'000; // finding keys takes long in larger ones
    std::size_t checked = 0;
    for (const bench::Document& document : bench::documents())
    {
        if (document.size <= largest)
        {
            const std::string twin = bench::jsonTwin(document.text);
            const std::size_t size = document.text.size();
            EXPECT_TRUE(nlohmann::json::accept(twin)) << document.name;
            EXPECT_GT(twin.size(), size * 2 / 5) << document.name;
            EXPECT_LE(twin.size(), size + size / 50) << document.name;
            ++checked;
        }
    }
    EXPECT_EQ(checked, 12U);
}
