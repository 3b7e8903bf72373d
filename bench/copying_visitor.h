// A visitor that keeps what it is told.
#pragma once

#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

namespace bench
{

class CopyingVisitor : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    void visitBareKey(const char* text) override { copy(text); }
    void visitQuotedKey(const char* text) override { copy(text); }
    void visitBasicString(const char* text) override { copy(text); }
    void visitMultilineBasicString(const char* text) override { copy(text); }
    void visitLiteralString(const char* text) override { copy(text); }
    void visitMultilineLiteralString(const char* text) override { copy(text); }
    void visitInteger(const char* text) override { copy(text); }
    void visitFloat(const char* text) override { copy(text); }
    void visitBoolean(const char* text) override { copy(text); }
    void visitOffsetDateTime(const char* text) override { copy(text); }
    void visitLocalDateTime(const char* text) override { copy(text); }
    void visitLocalDate(const char* text) override { copy(text); }
    void visitLocalTime(const char* text) override { copy(text); }

private:
    void copy(const char* text) { texts_.emplace_back(text); }

    std::vector<std::string> texts_;
};

} // namespace bench
