#pragma once

#include <vorn/parsers/toml.h>

namespace tool
{

// Turns every call into an event: the operation's name and, if it has one, its text.
class EventVisitor : public vorn::parsers::toml::ITomlTreeVisitor
{
public:
    void beginDocument() override { event("beginDocument"); }
    void endDocument() override { event("endDocument"); }
    void beginKeyValue() override { event("beginKeyValue"); }
    void endKeyValue() override { event("endKeyValue"); }
    void beginTable() override { event("beginTable"); }
    void endTable() override { event("endTable"); }
    void beginArrayTable() override { event("beginArrayTable"); }
    void endArrayTable() override { event("endArrayTable"); }
    void beginDottedKey() override { event("beginDottedKey"); }
    void endDottedKey() override { event("endDottedKey"); }
    void visitBareKey(const char* text) override { event("visitBareKey", text); }
    void visitQuotedKey(const char* text) override { event("visitQuotedKey", text); }
    void beginArray() override { event("beginArray"); }
    void endArray() override { event("endArray"); }
    void beginInlineTable() override { event("beginInlineTable"); }
    void endInlineTable() override { event("endInlineTable"); }
    void visitBasicString(const char* text) override { event("visitBasicString", text); }
    void visitMultilineBasicString(const char* text) override
    {
        event("visitMultilineBasicString", text);
    }
    void visitLiteralString(const char* text) override { event("visitLiteralString", text); }
    void visitMultilineLiteralString(const char* text) override
    {
        event("visitMultilineLiteralString", text);
    }
    void visitInteger(const char* text) override { event("visitInteger", text); }
    void visitFloat(const char* text) override { event("visitFloat", text); }
    void visitBoolean(const char* text) override { event("visitBoolean", text); }
    void visitOffsetDateTime(const char* text) override { event("visitOffsetDateTime", text); }
    void visitLocalDateTime(const char* text) override { event("visitLocalDateTime", text); }
    void visitLocalDate(const char* text) override { event("visitLocalDate", text); }
    void visitLocalTime(const char* text) override { event("visitLocalTime", text); }

protected:
    virtual void event(const char* operation) = 0;
    virtual void event(const char* operation, const char* text) = 0;
};

} // namespace tool
