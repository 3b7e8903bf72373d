#include "crash_report.h"

#include <csignal>
#include <unistd.h>

namespace test
{
namespace
{

const std::string* read = nullptr;

void write(const char* text, std::size_t length)
{
    // There is nobody to tell that this fails.
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, text, length);
}

// A signal handler: it does not allocate.
void report(int)
{
    static constexpr char introduction[] = "A document crashes (in hexadecimal digits): ";
    static constexpr char digits[] = "0123456789ABCDEF";
    write(introduction, sizeof(introduction) - 1);
    for (const char c : *read)
    {
        const auto byte = static_cast<unsigned char>(c);
        const char pair[] = {digits[byte >> 4], digits[byte & 0xF]};
        write(pair, sizeof(pair));
    }
    write("\n", 1);
    // The signal's default action follows.
}

} // namespace

void reportCrashesOn(const std::string& document)
{
    read = &document;
    // Its own stack, since what crashes may have used up the other one.
    static char stack[16 * 1024];
    stack_t alternative = {};
    alternative.ss_sp = stack;
    alternative.ss_size = sizeof(stack);
    sigaltstack(&alternative, nullptr);
    struct sigaction action = {};
    action.sa_handler = report;
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
    {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace test
