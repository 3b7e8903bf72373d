// All functions of the library on eight threads at once, the first use in the process
// included.  The logger keeps the lines of each thread apart: a lock would put the threads
// into an order that hides what they do to each other.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>
#include <vorn/utils/log.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/event_recorder.h"
#include "support/large_documents.h"
#include "support/stderr_capture.h"
#include "support/temporary_directory.h"

using namespace vorn::parsers::toml;

namespace
{

constexpr std::size_t threads = 8;
constexpr int rounds = 60;

thread_local std::string logged;

} // namespace

void logInternal(const char*, const char*, const char*, int, int, int, int, const char* format, ...)
{
    char line[200] = "";
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    logged += line;
    logged += '\n';
}

namespace
{

// A call of the library, and all that it shows in one text.
struct Call
{
    std::string name;
    std::function<std::string()> make;
};

template <typename Source>
Call reading(const std::string& name, const Source& source)
{
    return {name, [source]
            {
                test::EventRecorder visitor;
                std::string shown = visitTomlTree(source, visitor) ? "accepted\n" : "refused\n";
                for (const std::string& event : visitor.events())
                {
                    shown += event + '\n';
                }
                return shown;
            }};
}

std::vector<Call> readings(const test::TemporaryDirectory& directory)
{
    const std::vector<std::string> documents = {
        "",
        "a = 1\n",
        "[t]\na.b = [1, {c = 'd'}]\n",
        test::mixedDocument(2000),
        test::nestedDocument("[", "]", 50),
        "a = 1",
        "b = @1\n",
        "c = {}\nd = [1,, 2]\n",
        "e = 1979-05-27 # c\n",
        "\xc3\xa9\nf = '\xf0\x9f\x98\x80'\n",
        test::nestedDocument("[{a=", "}]", 30) + "@",
        test::mixedDocument(500) + "a 1\n",
    };
    std::vector<Call> calls = {reading("no file", FilePath("/no/such/file"))};
    for (std::size_t index = 0; index < documents.size(); ++index)
    {
        const std::string name = "document " + std::to_string(index);
        calls.push_back(reading(name, documents[index]));
        calls.push_back(reading(name + " in a file", FilePath(directory.write(std::to_string(index),
                                                                              documents[index]))));
    }
    return calls;
}

std::vector<Call> conversions()
{
    std::vector<Call> calls = {
        {"unquote", [] { return unquote("'C:\\temp'"); }},
        {"unquote with a delimiter", [] { return unquote("'''x'''", "'''"); }},
        {"enquote", [] { return enquote("it's", "'"); }},
        {"processMultilineString",
         [] { return processMultilineString("\"\"\"\none\\\n   two\"\"\""); }},
        {"processMultilineLiteralString",
         [] { return processMultilineLiteralString("'''\nC:\\temp\\\n'''"); }},
        {"parseBoolean", [] { return std::to_string(parseBoolean("true")); }},
        {"parseFloat", [] { return std::to_string(parseFloat("1_000.5e3")); }},
        {"parseInteger, too large",
         []
         {
             try
             {
                 return std::to_string(parseInteger("0b1" + std::string(40, '0')));
             }
             catch (const std::overflow_error& error)
             {
                 return std::string(error.what());
             }
         }},
    };
    for (const char* const text : {"-1_000", "0xDEAD_beef", "0o755", "0b1101_0101"})
    {
        calls.push_back({text, [text] { return std::to_string(parseInteger(text)); }});
    }
    for (const char* const text : {"1979-05-27T07:32:00Z", "1979-05-27T07:32:00-07:00",
                                   "1979-05-27 07:32:00.999999", "1979-05-27"})
    {
        calls.push_back({text, [text] { return std::to_string(parseDateTime(text).tv_sec); }});
    }
    return calls;
}

std::string shownBy(const Call& call)
{
    logged.clear();
    const std::string result = call.make();
    return result + "log:\n" + logged;
}

// What a thread has seen: what its first round shows, and how often another one differed.
struct Seen
{
    std::vector<std::string> first;
    int differences = 0;
};

// Makes all calls in turn, beginning with another one on each thread.
Seen makeAll(const std::vector<Call>& calls, std::size_t thread)
{
    Seen seen;
    seen.first.resize(calls.size());
    for (int round = 0; round < rounds; ++round)
    {
        for (std::size_t index = 0; index < calls.size(); ++index)
        {
            const std::size_t place = (index + thread * calls.size() / threads) % calls.size();
            std::string shown = shownBy(calls[place]);
            if (round == 0)
            {
                seen.first[place] = std::move(shown);
            }
            else
            {
                seen.differences += shown != seen.first[place] ? 1 : 0;
            }
        }
    }
    return seen;
}

} // namespace

TEST(ManyThreads, seeWhatOneThreadAloneSees)
{
    setenv("TZ", "UTC0", 1);
    const test::StderrCapture quiet;
    const test::TemporaryDirectory directory;
    std::vector<Call> calls = readings(directory);
    const std::vector<Call> more = conversions();
    calls.insert(calls.end(), more.begin(), more.end());

    std::vector<Seen> seen(threads);
    std::vector<std::thread> running;
    std::atomic<std::size_t> waiting{threads};
    for (std::size_t thread = 0; thread < threads; ++thread)
    {
        running.emplace_back(
            [&, thread]
            {
                --waiting;
                while (waiting > 0)
                {
                    std::this_thread::yield();
                }
                seen[thread] = makeAll(calls, thread);
            });
    }
    for (std::thread& thread : running)
    {
        thread.join();
    }

    for (std::size_t index = 0; index < calls.size(); ++index)
    {
        SCOPED_TRACE(calls[index].name);
        const std::string alone = shownBy(calls[index]);
        for (const Seen& one : seen)
        {
            EXPECT_EQ(one.first[index], alone);
        }
    }
    for (const Seen& one : seen)
    {
        EXPECT_EQ(one.differences, 0);
    }
}
