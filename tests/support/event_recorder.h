#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/operations.h"

namespace test
{

// The visitor calls of a reading, one string a call: the operation's name and, after
// one blank, its text.
using Events = std::vector<std::string>;

class EventRecorder : public OperationVisitor
{
public:
    const Events& events() const { return events_; }

    // Called after each event has been recorded; it may throw.
    void onEvent(std::function<void(const std::string&)> observer)
    {
        observer_ = std::move(observer);
    }

protected:
    void called(const char* operation) override { record(operation); }
    void called(const char* operation, const char* text) override
    {
        // A null text would be the library's fault; it shows as a text of its own.
        record(std::string(operation) + ' ' + (text != nullptr ? text : "(null pointer)"));
    }

private:
    void record(const std::string& event)
    {
        events_.push_back(event);
        if (observer_)
        {
            observer_(events_.back());
        }
    }

    Events events_;
    std::function<void(const std::string&)> observer_;
};

} // namespace test
