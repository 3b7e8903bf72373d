#pragma once

#include <vorn/parsers/toml.h>

#include <functional>
#include <string>
#include <vector>

namespace test
{

// The visitor calls of a reading, one string a call: the operation's name and, behind
// one blank, its text.
using Events = std::vector<std::string>;

class EventRecorder : public vorn::parsers::toml::ITomlTreeVisitor
{
public:
    const Events& events() const { return events_; }

    // Called after each event has been recorded; it may throw.
    void onEvent(std::function<void(const std::string&)> observer)
    {
        observer_ = std::move(observer);
    }

    void beginDocument() override { record("beginDocument"); }
    void endDocument() override { record("endDocument"); }
    void beginKeyValue() override { record("beginKeyValue"); }
    void endKeyValue() override { record("endKeyValue"); }
    void beginTable() override { record("beginTable"); }
    void endTable() override { record("endTable"); }
    void beginArrayTable() override { record("beginArrayTable"); }
    void endArrayTable() override { record("endArrayTable"); }
    void beginDottedKey() override { record("beginDottedKey"); }
    void endDottedKey() override { record("endDottedKey"); }
    void visitBareKey(const char* text) override { record("visitBareKey", text); }
    void visitQuotedKey(const char* text) override { record("visitQuotedKey", text); }
    void beginArray() override { record("beginArray"); }
    void endArray() override { record("endArray"); }
    void beginInlineTable() override { record("beginInlineTable"); }
    void endInlineTable() override { record("endInlineTable"); }
    void visitBasicString(const char* text) override { record("visitBasicString", text); }
    void visitMultilineBasicString(const char* text) override
    {
        record("visitMultilineBasicString", text);
    }
    void visitLiteralString(const char* text) override { record("visitLiteralString", text); }
    void visitMultilineLiteralString(const char* text) override
    {
        record("visitMultilineLiteralString", text);
    }
    void visitInteger(const char* text) override { record("visitInteger", text); }
    void visitFloat(const char* text) override { record("visitFloat", text); }
    void visitBoolean(const char* text) override { record("visitBoolean", text); }
    void visitOffsetDateTime(const char* text) override { record("visitOffsetDateTime", text); }
    void visitLocalDateTime(const char* text) override { record("visitLocalDateTime", text); }
    void visitLocalDate(const char* text) override { record("visitLocalDate", text); }
    void visitLocalTime(const char* text) override { record("visitLocalTime", text); }

private:
    void record(const std::string& operation)
    {
        events_.push_back(operation);
        if (observer_)
        {
            observer_(events_.back());
        }
    }
    void record(const std::string& operation, const char* text)
    {
        // A null text would be the library's fault; it shows as a text of its own.
        record(operation + ' ' + (text != nullptr ? text : "(null pointer)"));
    }

    Events events_;
    std::function<void(const std::string&)> observer_;
};

} // namespace test
