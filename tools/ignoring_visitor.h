#pragma once

#include <vorn/parsers/toml.h>

namespace tool
{

// Takes every call and does nothing: for those who want only the result.
class IgnoringVisitor : public vorn::parsers::toml::ITomlTreeVisitor
{
public:
    void beginDocument() override {}
    void endDocument() override {}
    void beginKeyValue() override {}
    void endKeyValue() override {}
    void beginTable() override {}
    void endTable() override {}
    void beginArrayTable() override {}
    void endArrayTable() override {}
    void beginDottedKey() override {}
    void endDottedKey() override {}
    void visitBareKey(const char*) override {}
    void visitQuotedKey(const char*) override {}
    void beginArray() override {}
    void endArray() override {}
    void beginInlineTable() override {}
    void endInlineTable() override {}
    void visitBasicString(const char*) override {}
    void visitMultilineBasicString(const char*) override {}
    void visitLiteralString(const char*) override {}
    void visitMultilineLiteralString(const char*) override {}
    void visitInteger(const char*) override {}
    void visitFloat(const char*) override {}
    void visitBoolean(const char*) override {}
    void visitOffsetDateTime(const char*) override {}
    void visitLocalDateTime(const char*) override {}
    void visitLocalDate(const char*) override {}
    void visitLocalTime(const char*) override {}
};

} // namespace tool
