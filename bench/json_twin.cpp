#include "json_twin.h"

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_values.h>

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <utility>
#include <vector>

namespace bench
{
namespace
{

namespace toml = vorn::parsers::toml;
using Json = nlohmann::ordered_json;

// Of a document that defines nothing twice and whose numbers are in range.
class TwinBuilder : public toml::TomlTreeVisitor
{
public:
    const Json& document() const { return document_; }

    void beginKeyValue() override { key_.clear(); }
    void beginTable() override { key_.clear(); }
    void beginArrayTable() override { key_.clear(); }
    void visitBareKey(const char* text) override { key_.emplace_back(text); }
    void visitQuotedKey(const char* text) override { key_.push_back(*toml::stringValue(text)); }

    void endTable() override
    {
        Json& table = followed(&document_);
        table = table.is_null() ? Json::object() : std::move(table);
        open_ = {&table};
    }
    void endArrayTable() override
    {
        const std::string last = key_.back();
        key_.pop_back();
        Json& list = followed(&document_)[last];
        list.push_back(Json::object());
        open_ = {&list.back()};
    }

    void beginArray() override { open_.push_back(&put(Json::array())); }
    void endArray() override { open_.pop_back(); }
    void beginInlineTable() override { open_.push_back(&put(Json::object())); }
    void endInlineTable() override { open_.pop_back(); }

    void visitBasicString(const char* text) override { put(*toml::stringValue(text)); }
    void visitMultilineBasicString(const char* text) override { put(*toml::stringValue(text)); }
    void visitLiteralString(const char* text) override { put(*toml::stringValue(text)); }
    void visitMultilineLiteralString(const char* text) override { put(*toml::stringValue(text)); }
    void visitInteger(const char* text) override { put(toml::integerValue(text).value()); }
    void visitFloat(const char* text) override { put(toml::floatValue(text).value()); }
    void visitBoolean(const char* text) override { put(toml::booleanValue(text)); }
    void visitOffsetDateTime(const char* text) override { put(text); }
    void visitLocalDateTime(const char* text) override { put(text); }
    void visitLocalDate(const char* text) override { put(text); }
    void visitLocalTime(const char* text) override { put(text); }

private:
    // Where the key leads to from a place, through the last elements of arrays of tables.
    Json& followed(Json* place)
    {
        for (const std::string& name : key_)
        {
            place = &(*place)[name];
            place = place->is_array() ? &place->back() : place;
        }
        return *place;
    }

    Json& put(Json value)
    {
        Json& around = *open_.back();
        if (around.is_array())
        {
            around.push_back(std::move(value));
            return around.back();
        }
        return followed(&around) = std::move(value);
    }

    Json document_ = Json::object();
    std::vector<std::string> key_;           // its parts
    std::vector<Json*> open_ = {&document_}; // the header's table, arrays and inline tables in it
};

} // namespace

std::string jsonTwin(const std::string& document)
{
    TwinBuilder builder;
    if (!toml::visitTomlTree(document, builder))
    {
        throw std::runtime_error("a rejected document has no twin");
    }
    return builder.document().dump();
}

} // namespace bench
