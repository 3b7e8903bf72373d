// Readings on two threads at once.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/log_recorder.h"
#include "support/stderr_capture.h"

using namespace test;
using vorn::parsers::toml::visitTomlTree;

namespace
{

struct Document
{
    std::string text;
    bool accepted;
    Events events;
    Messages messages;
};

const std::vector<Document>& documents()
{
    static const std::vector<Document> table = {
        {"[t]\na = [1, 2]\n",
         true,
         document({test::table(bare("t")), pair(bare("a"), array({integer("1"), integer("2")}))}),
         {}},
        {"b = @1\n",
         false,
         document({pair(bare("b"), integer("1"))}),
         {lexerFailure("@"), syntaxErrors(1)}},
        {"c = {}\n",
         false,
         document({pair(bare("c"), inlineTable({}))}),
         {parserFailure("c={}\n"), treeFailure(), syntaxErrors(2)}},
        {"d.e = '\xc3\xa9'\n",
         true,
         document(
             {pair(dotted({bare("d"), bare("e")}), scalar("visitLiteralString", "'\xc3\xa9'"))}),
         {}},
        {"f = 1979-05-27",
         false,
         brokenOff({pair(bare("f"), scalar("visitLocalDate", "1979-05-27"))}),
         {walkFailure()}},
    };
    return table;
}

// Reads each document in turn, starting with the one at `first`; returns the number
// of readings that went wrong.
int readAll(std::size_t first, int rounds)
{
    int wrong = 0;
    for (int round = 0; round < rounds; ++round)
    {
        for (std::size_t index = 0; index < documents().size(); ++index)
        {
            const Document& one = documents()[(first + index) % documents().size()];
            EventRecorder visitor;
            const bool accepted = visitTomlTree(one.text, visitor);
            wrong += accepted != one.accepted || visitor.events() != one.events;
        }
    }
    return wrong;
}

void expectRightOnTwoThreads(int rounds)
{
    const LogRecorder log;
    const StderrCapture quiet;
    std::atomic<int> waiting{2};
    const auto start = [&waiting, rounds](std::size_t first, int& wrong)
    {
        documents();
        --waiting;
        while (waiting > 0)
        {
            std::this_thread::yield();
        }
        wrong = readAll(first, rounds);
    };
    int wrong[2] = {-1, -1};
    std::thread other(start, 1, std::ref(wrong[1]));
    start(0, wrong[0]);
    other.join();
    EXPECT_EQ(wrong[0], 0);
    EXPECT_EQ(wrong[1], 0);

    Messages expected;
    for (int round = 0; round < 2 * rounds; ++round)
    {
        for (const Document& one : documents())
        {
            expected.insert(expected.end(), one.messages.begin(), one.messages.end());
        }
    }
    Messages logged = log.messages();
    std::sort(expected.begin(), expected.end());
    std::sort(logged.begin(), logged.end());
    EXPECT_TRUE(logged == expected);
}

} // namespace

TEST(TomlThreads, atTheFirstUseInTheProcess)
{
    expectRightOnTwoThreads(1);
}

TEST(TomlThreads, inManyRounds)
{
    expectRightOnTwoThreads(150);
}
