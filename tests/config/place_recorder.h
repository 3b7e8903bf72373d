#pragma once

#include <vorn/parsers/toml_places.h>

#include <string>
#include <vector>

namespace test
{

// A call with its place.
struct PlacedCall
{
    std::string operation;
    std::string text;
    vorn::parsers::toml::Place place;

    // As EventRecorder has it.
    std::string event() const
    {
        return operation.substr(0, 5) == "visit" ? operation + ' ' + text : operation;
    }
};

class PlaceRecorder : public vorn::parsers::toml::PlacedVisitor
{
public:
    const std::vector<PlacedCall>& calls() const { return calls_; }

    void beginDocument() override { record(__func__, ""); }
    void endDocument() override { record(__func__, ""); }
    void beginKeyValue() override { record(__func__, ""); }
    void endKeyValue() override { record(__func__, ""); }
    void beginTable() override { record(__func__, ""); }
    void endTable() override { record(__func__, ""); }
    void beginArrayTable() override { record(__func__, ""); }
    void endArrayTable() override { record(__func__, ""); }
    void beginDottedKey() override { record(__func__, ""); }
    void endDottedKey() override { record(__func__, ""); }
    void beginArray() override { record(__func__, ""); }
    void endArray() override { record(__func__, ""); }
    void beginInlineTable() override { record(__func__, ""); }
    void endInlineTable() override { record(__func__, ""); }
    void visitBareKey(const char* text) override { record(__func__, text); }
    void visitQuotedKey(const char* text) override { record(__func__, text); }
    void visitBasicString(const char* text) override { record(__func__, text); }
    void visitMultilineBasicString(const char* text) override { record(__func__, text); }
    void visitLiteralString(const char* text) override { record(__func__, text); }
    void visitMultilineLiteralString(const char* text) override { record(__func__, text); }
    void visitInteger(const char* text) override { record(__func__, text); }
    void visitFloat(const char* text) override { record(__func__, text); }
    void visitBoolean(const char* text) override { record(__func__, text); }
    void visitOffsetDateTime(const char* text) override { record(__func__, text); }
    void visitLocalDateTime(const char* text) override { record(__func__, text); }
    void visitLocalDate(const char* text) override { record(__func__, text); }
    void visitLocalTime(const char* text) override { record(__func__, text); }

private:
    void record(const char* operation, const char* text)
    {
        calls_.push_back({operation, text, place()});
    }

    std::vector<PlacedCall> calls_;
};

} // namespace test
