#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace test
{

// An environment variable that has another value, or none, while this lives.
class Variable
{
public:
    Variable(const char* name, const char* value) : name_(name)
    {
        if (const char* const before = std::getenv(name))
        {
            before_ = before;
        }
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

private:
    void set(const char* value)
    {
        if (value != nullptr)
        {
            setenv(name_, value, 1);
        }
        else
        {
            unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> before_;
};

} // namespace test
