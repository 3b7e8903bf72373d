// Prints a TOML document as JSON: toml_to_json FILE
//
// Keys keep their order, tables and arrays become objects and arrays.  JSON has no dates
// and times, infinities and not-a-numbers: they become strings, dates and times as they
// are written, the others as "inf", "-inf" and "nan".
//
// Exit status: 0 done, 1 the document is not TOML 1.0, which standard error explains, 2 wrong
// usage.
#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>
#include <vorn/parsers/toml_values.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using Json = nlohmann::ordered_json;

// A float beyond the range of double becomes an infinity.
Json floatJson(const std::string& text)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double value = toml::floatValue(text).value_or(text[0] == '-' ? -infinity : infinity);
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
class JsonBuilder : public toml::TomlTreeVisitor
{
public:
    const Json& document() const { return document_; }

    void beginKeyValue() override { key_.clear(); }
    void beginTable() override { key_.clear(); }
    void beginArrayTable() override { key_.clear(); }
    void visitBareKey(const char* text) override { key_.emplace_back(text); }
    void visitQuotedKey(const char* text) override { key_.push_back(*toml::stringValue(text)); }

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

    void visitBasicString(const char* text) override { put(*toml::stringValue(text)); }
    void visitMultilineBasicString(const char* text) override { put(*toml::stringValue(text)); }
    void visitLiteralString(const char* text) override { put(*toml::stringValue(text)); }
    void visitMultilineLiteralString(const char* text) override { put(*toml::stringValue(text)); }
    void visitInteger(const char* text) override { put(*toml::integerValue(text)); }
    void visitFloat(const char* text) override { put(floatJson(text)); }
    void visitBoolean(const char* text) override { put(toml::booleanValue(text)); }
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

bool isError(const toml::Finding& finding)
{
    return finding.severity == toml::Severity::error;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what is not caught is a lack of memory.
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "Usage: toml_to_json FILE\n";
        return 2;
    }
    std::ifstream file(argv[1], std::ios::binary);
    file.peek();
    if (file.fail())
    {
        std::cerr << argv[1] << ": cannot be read\n";
        return 1;
    }
    std::ostringstream text;
    text << file.rdbuf();
    toml::DiagnosisOptions options;
    options.strict = true;
    JsonBuilder builder;
    const std::vector<toml::Finding> findings = toml::visitOrDiagnose(text.str(), builder, options);
    for (const toml::Finding& finding : findings)
    {
        std::cerr << argv[1] << ':' << finding.line << ':' << finding.column << ": "
                  << finding.message << '\n';
    }
    if (std::any_of(findings.begin(), findings.end(), isError))
    {
        return 1;
    }
    std::cout << builder.document().dump(2) << '\n';
    return 0;
}
