#pragma once

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace test
{

// Counts its calls, and allocates nothing.
class CountingVisitor : public vorn::parsers::toml::ITomlTreeVisitor
{
public:
    std::size_t calls = 0;
    std::size_t textBytes = 0;
    std::size_t depth = 0; // of arrays and inline tables
    std::size_t deepest = 0;

    void beginDocument() override { ++calls; }
    void endDocument() override { ++calls; }
    void beginKeyValue() override { ++calls; }
    void endKeyValue() override { ++calls; }
    void beginTable() override { ++calls; }
    void endTable() override { ++calls; }
    void beginArrayTable() override { ++calls; }
    void endArrayTable() override { ++calls; }
    void beginDottedKey() override { ++calls; }
    void endDottedKey() override { ++calls; }
    void visitBareKey(const char* text) override { count(text); }
    void visitQuotedKey(const char* text) override { count(text); }
    void beginArray() override { enter(); }
    void endArray() override { leave(); }
    void beginInlineTable() override { enter(); }
    void endInlineTable() override { leave(); }
    void visitBasicString(const char* text) override { count(text); }
    void visitMultilineBasicString(const char* text) override { count(text); }
    void visitLiteralString(const char* text) override { count(text); }
    void visitMultilineLiteralString(const char* text) override { count(text); }
    void visitInteger(const char* text) override { count(text); }
    void visitFloat(const char* text) override { count(text); }
    void visitBoolean(const char* text) override { count(text); }
    void visitOffsetDateTime(const char* text) override { count(text); }
    void visitLocalDateTime(const char* text) override { count(text); }
    void visitLocalDate(const char* text) override { count(text); }
    void visitLocalTime(const char* text) override { count(text); }

private:
    void count(const char* text)
    {
        ++calls;
        textBytes += std::strlen(text);
    }
    void enter()
    {
        ++calls;
        ++depth;
        deepest = std::max(deepest, depth);
    }
    void leave()
    {
        ++calls;
        --depth;
    }
};

} // namespace test
