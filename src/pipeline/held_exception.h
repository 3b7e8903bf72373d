#pragma once

#include <exception>

namespace vorn::parsers::toml
{

// An exception that waits.  Frames of C code lie beneath a callback; where an exception
// cannot cross them it is held until they have returned.
class HeldException
{
public:
    // Calls what it is given, and holds what that throws; once it holds something, it calls
    // nothing more.
    template <typename Call>
    void guard(Call call) noexcept
    {
        if (exception_ != nullptr)
        {
            return;
        }
        try
        {
            call();
        }
        catch (...)
        {
            exception_ = std::current_exception();
        }
    }

    // Throws what is held, if anything is.
    void pass() const
    {
        if (exception_ != nullptr)
        {
            std::rethrow_exception(exception_);
        }
    }

private:
    std::exception_ptr exception_;
};

} // namespace vorn::parsers::toml
