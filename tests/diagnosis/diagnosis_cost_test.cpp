// What a diagnosis takes, of memory and of the stack, whatever the document is.
#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>

#include <pthread.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "diagnosis/codes.h"
#include "diagnosis/long_statement.h"
#include "diagnosis/refused_document.h"
#include "diagnosis/valid_lines.h"

#include "support/large_documents.h"
#include "support/memory_limit.h"
#include "support/stderr_capture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace toml = vorn::parsers::toml;

namespace
{

constexpr std::size_t kilobyte = 1024;
constexpr std::size_t megabyte = 1024 * kilobyte;

bool hasError(const std::vector<toml::Finding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const toml::Finding& one)
                       { return one.severity == toml::Severity::error; });
}

// What a task takes in a process of its own, in which it succeeds.
rusage usageOf(const std::function<bool()>& task)
{
    const pid_t child = fork();
    if (child == 0)
    {
        _exit(task() ? 0 : 1);
    }
    int status = -1;
    rusage usage = {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(status, 0);
    return usage;
}

// The most memory, in bytes, while a text is made, and diagnosed if it is to be.
std::size_t peakOf(const std::function<std::string()>& makeText, bool diagnoses)
{
    const rusage usage = usageOf(
        [&]
        {
            // The first use of the library brings in the pages of its code.
            const bool isFound = hasError(toml::diagnose("a = []\n@\n[a\n"));
            const std::string text = makeText();
            return isFound && (!diagnoses || hasError(toml::diagnose(text)));
        });
    return static_cast<std::size_t>(usage.ru_maxrss) * kilobyte;
}

void expectAtMost(std::size_t most, const std::function<std::string()>& makeText)
{
    const std::size_t textAlone = peakOf(makeText, false);
    EXPECT_LE(peakOf(makeText, true), textAlone + most) << makeText().substr(0, 20);
}

// Runs on a thread with such a stack.
void runOnStack(std::size_t stackSize, std::function<void()> task)
{
    pthread_attr_t attributes;
    pthread_t thread = {};
    const auto run = [](void* data) -> void*
    {
        (*static_cast<std::function<void()>*>(data))();
        return nullptr;
    };
    if (pthread_attr_init(&attributes) != 0 ||
        pthread_attr_setstacksize(&attributes, stackSize) != 0 ||
        pthread_create(&thread, &attributes, run, &task) != 0 || pthread_join(thread, nullptr) != 0)
    {
        throw std::runtime_error("no thread with such a stack");
    }
    pthread_attr_destroy(&attributes);
}

// The verdict of the library and that of the diagnosis, on such a stack.
void expectSameVerdict(std::size_t stackSize, const std::string& text, bool* accepted = nullptr)
{
    bool isAccepted = false;
    bool isFound = false;
    const test::StderrCapture printed;
    runOnStack(stackSize,
               [&]
               {
                   toml::TomlTreeVisitor visitor;
                   isAccepted = toml::visitTomlTree(text, visitor);
                   isFound = hasError(toml::diagnose(text));
               });
    EXPECT_EQ(isFound, !isAccepted);
    if (accepted != nullptr)
    {
        *accepted = isAccepted;
    }
}

double secondsOf(const timeval& time)
{
    constexpr double microsecond = 1e-6;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * microsecond;
}

// Of the processor, for all findings of as many lines.
double timeOf(const std::string& line, std::size_t count)
{
    const rusage usage = usageOf(
        [&]
        {
            toml::DiagnosisOptions all;
            all.maxFindings = 0;
            return toml::diagnose(test::repeated(line, count), all).size() == count;
        });
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}

} // namespace

// A message that names a line does not count the lines before it.
TEST(DiagnosisTime, isInProportionToTheDocument)
{
    constexpr std::size_t times = 16;
    constexpr std::size_t few = 1000;
    const std::string line = "a=[1, #" + std::string(250, ' ') + '\n';
    EXPECT_LT(timeOf(line, times * few), 4 * times * timeOf(line, few));
}

TEST(DiagnosisMemory, isLittleForAMistakeInALargeDocument)
{
    expectAtMost(4 * megabyte, [] { return test::mixedDocument(10 * megabyte) + "a = []\n"; });
}

TEST(DiagnosisMemory, isLittleForADocumentOfMistakes)
{
    for (const char* line : {"[a\n", "a 1\n", "a = {}\n", "'\n", "@\n", "@", "]", "\r", "\"\\q"})
    {
        expectAtMost(16 * megabyte, [=]
                     { return test::repeated(line, 1600 * kilobyte / std::string(line).size()); });
    }
}

TEST(DiagnosisMemory, isASmallMultipleOfANestedDocument)
{
    expectAtMost(16 * megabyte, [] { return test::enclosed("a = ", "[", 2 * megabyte, ""); });
    expectAtMost(16 * megabyte, [] { return test::enclosed("a = ", "{b=", megabyte / 2, ""); });
}

// Where there is too little memory the diagnosis says so, and nothing else happens.
TEST(DiagnosisMemory, mayBeShort)
{
    const std::string text = test::repeated("a = [[], {}]\n", 5000);
    bool isFound = false;
    bool hasThrown = false;
    for (std::size_t left = 64 * kilobyte; left < 256 * megabyte; left += left / 4)
    {
        const pid_t child = fork();
        if (child == 0)
        {
            const test::MemoryLimit limit(left);
            int status = 2;
            try
            {
                status = hasError(toml::diagnose(text)) ? 0 : 2;
            }
            catch (const std::bad_alloc&)
            {
                status = 1;
            }
            _exit(status);
        }
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) < 2) << left << ": " << status;
        (WEXITSTATUS(status) == 0 ? isFound : hasThrown) = true;
    }
    EXPECT_TRUE(isFound);
    EXPECT_TRUE(hasThrown);
}

// Each says so by itself, without the others before it.
TEST(DiagnosisMemory, isAskedForBeforeItIsNeeded)
{
    const std::string text(64 * megabyte, '\n');
    toml::diagnosis::DamagedPart part;
    part.part = toml::diagnosis::wholeOf(text);
    const std::string little = "a = 1\n";
    const toml::diagnosis::ValidLines lines(little);
    std::optional<toml::diagnosis::Mistake> refusal;
    {
        const test::MemoryLimit limit(64 * kilobyte);
        EXPECT_THROW(toml::diagnosis::ValidLines{text}, std::bad_alloc);
        EXPECT_THROW(toml::diagnosis::firstMistake(text, part), std::bad_alloc);
        EXPECT_THROW(toml::diagnosis::recognise(little, toml::diagnosis::wholeOf(little)),
                     std::bad_alloc);
        refusal = toml::diagnosis::refusedDocument(little, lines);
    }
    ASSERT_TRUE(refusal);
    EXPECT_STREQ(refusal->code, toml::diagnosis::codes::tooLarge);
    EXPECT_EQ(refusal->begin, 0U);
    EXPECT_EQ(refusal->message, "there is not enough memory to read the document");
}

TEST(DiagnosisStack, mayBeOfAnySize)
{
    for (const std::size_t levels : {9U, 11U, 100U, 1000U, 30000U})
    {
        const std::string opened(levels, '[');
        const std::string closed(levels, ']');
        for (const std::string& text :
             {"a = " + opened + '\n', "a = " + opened + closed + '\n',
              "a = " + opened + '1' + closed + '\n', "a = " + opened + '1' + closed + "\nb\n",
              "b\na = " + opened + "1, " + closed + " c\nb\n"})
        {
            SCOPED_TRACE(levels);
            expectSameVerdict(256 * kilobyte, text);
            expectSameVerdict(2048 * kilobyte, text);
        }
    }
}

TEST(DiagnosisStack, isTheReasonWhereThatOfTheLibraryIs)
{
    // Bytes that the scanner leaves to the lexer: the recognisers have to read the statement.
    const std::string odd = "\"\xed\xa0\x80\"";
    bool someAccepted = false;
    bool someRejected = false;
    for (const std::size_t levels : {5U, 50U, 20000U})
    {
        SCOPED_TRACE(levels);
        const std::string opened(levels, '[');
        const std::string closed(levels, ']');
        for (const std::string& text : {"a = " + opened + odd + closed + '\n',
                                        "a = " + odd + "\nb = " + opened + '1' + closed + '\n',
                                        "b = " + opened + '1' + closed + "\na = " + odd + '\n'})
        {
            bool accepted = false;
            expectSameVerdict(512 * kilobyte, text, &accepted);
            someAccepted = someAccepted || accepted;
            someRejected = someRejected || !accepted;
        }
    }
    EXPECT_TRUE(someAccepted);
    EXPECT_TRUE(someRejected);
}
