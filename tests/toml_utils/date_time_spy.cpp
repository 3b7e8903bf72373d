#include "date_time_spy.h"

#include <gtest/gtest.h>

#include <regex.h>

#include <vorn/utils/format.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <new>

namespace test
{
namespace
{

DateTimeSpy* spy = nullptr;

bool isZero(const regex_t& regex)
{
    return regex.buffer == nullptr && regex.allocated == 0 && regex.used == 0 &&
           regex.syntax == 0 && regex.fastmap == nullptr && regex.translate == nullptr &&
           regex.re_nsub == 0 && regex.no_sub == 0 && regex.fastmap_accurate == 0 &&
           regex.not_bol == 0 && regex.not_eol == 0 && regex.newline_anchor == 0;
}

bool isZero(const std::tm& time)
{
    return time.tm_sec == 0 && time.tm_min == 0 && time.tm_hour == 0 && time.tm_mday == 0 &&
           time.tm_mon == 0 && time.tm_year == 0 && time.tm_wday == 0 && time.tm_yday == 0 &&
           time.tm_isdst == 0 && time.tm_gmtoff == 0 && time.tm_zone == nullptr;
}

bool isFailing(const std::string& pattern)
{
    return std::find(spy->failing.begin(), spy->failing.end(), pattern) != spy->failing.end();
}

} // namespace

DateTimeSpy::DateTimeSpy()
{
    spy = this;
}

DateTimeSpy::~DateTimeSpy()
{
    EXPECT_EQ(regex, nullptr) << "an expression has not been freed";
    spy = nullptr;
}

void DateTimeSpy::record(const std::string& call)
{
    recordLog();
    calls_.push_back(call);
}

Calls DateTimeSpy::calls()
{
    recordLog();
    return calls_;
}

void DateTimeSpy::recordLog()
{
    const std::vector<std::string> messages = log_.messages();
    for (; recordedLines_ < messages.size(); ++recordedLines_)
    {
        calls_.push_back("log " + messages[recordedLines_]);
    }
}

} // namespace test

// Takes the place of the utility library's.
std::string vorn::utils::format(const char* format, ...)
{
    std::array<char, 64> text{};
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    if (test::spy != nullptr)
    {
        test::spy->record(std::string("format ") + format);
        if (test::spy->formatThrows)
        {
            throw std::bad_alloc();
        }
    }
    return {text.data(), static_cast<std::size_t>(length)};
}

extern "C"
{
    int __real_regcomp(regex_t* regex, const char* pattern, int flags);
    int __real_regexec(const regex_t* regex, const char* text, std::size_t count,
                       regmatch_t* matches, int flags);
    void __real_regfree(regex_t* regex);
    char* __real_strptime(const char* text, const char* format, std::tm* time);
    std::time_t __real_mktime(std::tm* time);

    int __wrap_regcomp(regex_t* regex, const char* pattern, int flags)
    {
        if (test::spy == nullptr)
        {
            return __real_regcomp(regex, pattern, flags);
        }
        test::spy->record("regcomp " + std::to_string(flags) + ' ' + pattern);
        EXPECT_TRUE(test::isZero(*regex));
        EXPECT_EQ(test::spy->regex, nullptr) << "the expression before has not been freed";
        test::spy->regex = regex;
        const bool fails = test::isFailing(pattern);
        if (fails && test::spy->leaving == test::Leaving::nothing)
        {
            return REG_ESPACE;
        }
        const int result = __real_regcomp(regex, pattern, flags);
        return fails ? REG_BADPAT : result;
    }

    int __wrap_regexec(const regex_t* regex, const char* text, std::size_t count,
                       regmatch_t* matches, int flags)
    {
        if (test::spy != nullptr)
        {
            test::spy->record("regexec " + std::to_string(count) + ' ' + std::to_string(flags) +
                              ' ' + text);
            EXPECT_EQ(test::spy->regex, regex);
        }
        return __real_regexec(regex, text, count, matches, flags);
    }

    void __wrap_regfree(regex_t* regex)
    {
        if (test::spy != nullptr)
        {
            test::spy->record("regfree");
            EXPECT_EQ(test::spy->regex, regex);
            test::spy->regex = nullptr;
        }
        __real_regfree(regex);
    }

    char* __wrap_strptime(const char* text, const char* format, std::tm* time)
    {
        if (test::spy != nullptr)
        {
            test::spy->record(std::string("strptime ") + text + " | " + format);
            EXPECT_TRUE(test::isZero(*time));
        }
        return __real_strptime(text, format, time);
    }

    std::time_t __wrap_mktime(std::tm* time)
    {
        if (test::spy != nullptr)
        {
            test::spy->record("mktime " + std::to_string(time->tm_isdst));
            if (test::spy->mktimeFails)
            {
                return -1;
            }
        }
        return __real_mktime(time);
    }
}
