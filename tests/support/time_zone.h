#pragma once

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace test
{

// The time zone of the process while it lives.  The C library reads an unknown zone as UTC
// without a word, so one that is not installed throws here.
class TimeZone
{
public:
    explicit TimeZone(const std::string& name)
    {
        if (!std::filesystem::exists("/usr/share/zoneinfo/" + name))
        {
            throw std::runtime_error("there is no time zone " + name +
                                     "; it is in the Debian package tzdata");
        }
        const char* const before = std::getenv("TZ");
        if (before != nullptr)
        {
            before_ = before;
        }
        setenv("TZ", name.c_str(), 1);
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone()
    {
        if (before_)
        {
            setenv("TZ", before_->c_str(), 1);
        }
        else
        {
            unsetenv("TZ");
        }
        tzset();
    }

private:
    std::optional<std::string> before_;
};

} // namespace test
