// The operations of the visitor's interface: what tests know of all of them.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>
#include <utility>
#include <vector>

namespace test
{

using vorn::parsers::toml::ITomlTreeVisitor;

class Operation
{
public:
    Operation(std::string operation, void (ITomlTreeVisitor::*member)())
        : name(std::move(operation)), plain_(member)
    {
    }
    Operation(std::string operation, void (ITomlTreeVisitor::*member)(const char*))
        : name(std::move(operation)), withText_(member)
    {
    }

    bool takesText() const { return withText_ != nullptr; }

    // The text goes to those that take one.
    void call(ITomlTreeVisitor& visitor, const char* text) const
    {
        takesText() ? (visitor.*withText_)(text) : (visitor.*plain_)();
    }

    const std::string name;

private:
    void (ITomlTreeVisitor::*plain_)() = nullptr;
    void (ITomlTreeVisitor::*withText_)(const char*) = nullptr;
};

// In the order of the interface, which clients are compiled against.
inline const std::vector<Operation> operations = {
    {"beginDocument", &ITomlTreeVisitor::beginDocument},
    {"endDocument", &ITomlTreeVisitor::endDocument},
    {"beginKeyValue", &ITomlTreeVisitor::beginKeyValue},
    {"endKeyValue", &ITomlTreeVisitor::endKeyValue},
    {"beginTable", &ITomlTreeVisitor::beginTable},
    {"endTable", &ITomlTreeVisitor::endTable},
    {"beginArrayTable", &ITomlTreeVisitor::beginArrayTable},
    {"endArrayTable", &ITomlTreeVisitor::endArrayTable},
    {"beginDottedKey", &ITomlTreeVisitor::beginDottedKey},
    {"endDottedKey", &ITomlTreeVisitor::endDottedKey},
    {"visitBareKey", &ITomlTreeVisitor::visitBareKey},
    {"visitQuotedKey", &ITomlTreeVisitor::visitQuotedKey},
    {"beginArray", &ITomlTreeVisitor::beginArray},
    {"endArray", &ITomlTreeVisitor::endArray},
    {"beginInlineTable", &ITomlTreeVisitor::beginInlineTable},
    {"endInlineTable", &ITomlTreeVisitor::endInlineTable},
    {"visitBasicString", &ITomlTreeVisitor::visitBasicString},
    {"visitMultilineBasicString", &ITomlTreeVisitor::visitMultilineBasicString},
    {"visitLiteralString", &ITomlTreeVisitor::visitLiteralString},
    {"visitMultilineLiteralString", &ITomlTreeVisitor::visitMultilineLiteralString},
    {"visitInteger", &ITomlTreeVisitor::visitInteger},
    {"visitFloat", &ITomlTreeVisitor::visitFloat},
    {"visitBoolean", &ITomlTreeVisitor::visitBoolean},
    {"visitOffsetDateTime", &ITomlTreeVisitor::visitOffsetDateTime},
    {"visitLocalDateTime", &ITomlTreeVisitor::visitLocalDateTime},
    {"visitLocalDate", &ITomlTreeVisitor::visitLocalDate},
    {"visitLocalTime", &ITomlTreeVisitor::visitLocalTime},
};

// The base of visitors that do the same in all operations, which they get by their names.
class OperationVisitor : public ITomlTreeVisitor
{
public:
    void beginDocument() override { called(__func__); }
    void endDocument() override { called(__func__); }
    void beginKeyValue() override { called(__func__); }
    void endKeyValue() override { called(__func__); }
    void beginTable() override { called(__func__); }
    void endTable() override { called(__func__); }
    void beginArrayTable() override { called(__func__); }
    void endArrayTable() override { called(__func__); }
    void beginDottedKey() override { called(__func__); }
    void endDottedKey() override { called(__func__); }
    void visitBareKey(const char* text) override { called(__func__, text); }
    void visitQuotedKey(const char* text) override { called(__func__, text); }
    void beginArray() override { called(__func__); }
    void endArray() override { called(__func__); }
    void beginInlineTable() override { called(__func__); }
    void endInlineTable() override { called(__func__); }
    void visitBasicString(const char* text) override { called(__func__, text); }
    void visitMultilineBasicString(const char* text) override { called(__func__, text); }
    void visitLiteralString(const char* text) override { called(__func__, text); }
    void visitMultilineLiteralString(const char* text) override { called(__func__, text); }
    void visitInteger(const char* text) override { called(__func__, text); }
    void visitFloat(const char* text) override { called(__func__, text); }
    void visitBoolean(const char* text) override { called(__func__, text); }
    void visitOffsetDateTime(const char* text) override { called(__func__, text); }
    void visitLocalDateTime(const char* text) override { called(__func__, text); }
    void visitLocalDate(const char* text) override { called(__func__, text); }
    void visitLocalTime(const char* text) override { called(__func__, text); }

protected:
    virtual void called(const char* operation) = 0;
    virtual void called(const char* operation, const char* text) = 0;
};

} // namespace test
