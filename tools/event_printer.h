#pragma once

#include <vorn/parsers/toml.h>

#include <cstdio>

namespace tool
{

// Prints a line for every call: the operation's name and, behind one blank, its text
// with \n, \r, \t, \\ and \xHH for every other byte that is not printable ASCII.
class EventPrinter : public vorn::parsers::toml::ITomlTreeVisitor
{
public:
    explicit EventPrinter(std::FILE* output) : output_(output) {}

    void beginDocument() override { print("beginDocument"); }
    void endDocument() override { print("endDocument"); }
    void beginKeyValue() override { print("beginKeyValue"); }
    void endKeyValue() override { print("endKeyValue"); }
    void beginTable() override { print("beginTable"); }
    void endTable() override { print("endTable"); }
    void beginArrayTable() override { print("beginArrayTable"); }
    void endArrayTable() override { print("endArrayTable"); }
    void beginDottedKey() override { print("beginDottedKey"); }
    void endDottedKey() override { print("endDottedKey"); }
    void visitBareKey(const char* text) override { print("visitBareKey", text); }
    void visitQuotedKey(const char* text) override { print("visitQuotedKey", text); }
    void beginArray() override { print("beginArray"); }
    void endArray() override { print("endArray"); }
    void beginInlineTable() override { print("beginInlineTable"); }
    void endInlineTable() override { print("endInlineTable"); }
    void visitBasicString(const char* text) override { print("visitBasicString", text); }
    void visitMultilineBasicString(const char* text) override
    {
        print("visitMultilineBasicString", text);
    }
    void visitLiteralString(const char* text) override { print("visitLiteralString", text); }
    void visitMultilineLiteralString(const char* text) override
    {
        print("visitMultilineLiteralString", text);
    }
    void visitInteger(const char* text) override { print("visitInteger", text); }
    void visitFloat(const char* text) override { print("visitFloat", text); }
    void visitBoolean(const char* text) override { print("visitBoolean", text); }
    void visitOffsetDateTime(const char* text) override { print("visitOffsetDateTime", text); }
    void visitLocalDateTime(const char* text) override { print("visitLocalDateTime", text); }
    void visitLocalDate(const char* text) override { print("visitLocalDate", text); }
    void visitLocalTime(const char* text) override { print("visitLocalTime", text); }

private:
    void print(const char* operation);
    void print(const char* operation, const char* text);

    std::FILE* output_;
};

} // namespace tool
