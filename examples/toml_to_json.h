// The visitor of toml_to_json: follows tables, dotted keys and arrays into a model.
#pragma once

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_values.h>

#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

// A float beyond the range of double becomes an infinity; those and not-a-numbers become strings.
inline nlohmann::ordered_json floatJson(const std::string& text)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double value =
        vorn::parsers::toml::floatValue(text).value_or(text[0] == '-' ? -infinity : infinity);
    if (std::isnan(value))
    {
        return "nan";
    }
    if (std::isinf(value))
    {
        return value < 0 ? "-inf" : "inf";
    }
    return value;
}

// Builds the JSON of a document that is TOML 1.0: nothing is defined twice there, and integers
// and strings have values.
class JsonBuilder : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    using Json = nlohmann::ordered_json;

    const Json& document() const { return document_; }

    void beginKeyValue() override { key_.clear(); }
    void beginTable() override { key_.clear(); }
    void beginArrayTable() override { key_.clear(); }
    void visitBareKey(const char* text) override { key_.emplace_back(text); }
    void visitQuotedKey(const char* text) override
    {
        key_.push_back(*vorn::parsers::toml::stringValue(text));
    }

    // Of [a.b], the pairs that follow are put into b.
    void endTable() override
    {
        Json& table = followed(&document_);
        if (table.is_null())
        {
            table = Json::object();
        }
        open_ = {&table};
    }
    // Of [[a.b]], they are put into a new element of b.
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

    void visitBasicString(const char* text) override
    {
        put(*vorn::parsers::toml::stringValue(text));
    }
    void visitMultilineBasicString(const char* text) override
    {
        put(*vorn::parsers::toml::stringValue(text));
    }
    void visitLiteralString(const char* text) override
    {
        put(*vorn::parsers::toml::stringValue(text));
    }
    void visitMultilineLiteralString(const char* text) override
    {
        put(*vorn::parsers::toml::stringValue(text));
    }
    void visitInteger(const char* text) override { put(*vorn::parsers::toml::integerValue(text)); }
    void visitFloat(const char* text) override { put(floatJson(text)); }
    void visitBoolean(const char* text) override { put(vorn::parsers::toml::booleanValue(text)); }
    void visitOffsetDateTime(const char* text) override { put(text); }
    void visitLocalDateTime(const char* text) override { put(text); }
    void visitLocalDate(const char* text) override { put(text); }
    void visitLocalTime(const char* text) override { put(text); }

private:
    // Where the key leads to from a place: on its way, through the last elements of arrays.
    Json& followed(Json* place)
    {
        for (const std::string& name : key_)
        {
            place = &(*place)[name];
            place = place->is_array() ? &place->back() : place;
        }
        return *place;
    }

    // Puts a value where it belongs: to the end of an array, or to the place of its key.
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
