// What a program keeps of the documents that are compared, and the visitor that it keeps it with.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_values.h>

namespace bench
{

struct ServiceSettings
{
    std::string name;
    std::string command;
    bool enabled = false;
    std::int64_t priority = 0;
    std::vector<std::int64_t> ports;
    double timeout = 0;
    std::string memory;
    std::int64_t files = 0;
    vorn::parsers::toml::DateTime started;
    std::string policy;
    std::vector<double> delays;
};

struct SensorSettings
{
    std::string unit;
    double offset = 0;
    bool active = false;
};

struct EntrySettings
{
    vorn::parsers::toml::DateTime created;
    vorn::parsers::toml::DateTime changed;
    vorn::parsers::toml::DateTime from;
    vorn::parsers::toml::DateTime until;
    std::int64_t zone = 0;
};

struct Settings
{
    std::vector<ServiceSettings> services;
    std::vector<SensorSettings> sensors;
    std::vector<EntrySettings> entries;
    std::vector<std::int64_t> samples;
    std::vector<std::string> texts;
};

// Converts and stores the values of the keys that it knows, and skips the others.
class SettingsVisitor : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    enum class Kind
    {
        string,
        integer,
        floating,
        boolean,
        dateTime
    };
    // A key below a header.  One that ends in '*' stands for all that start like it.
    struct KnownKey
    {
        std::string_view path;
        Kind kind;
        void (*store)(Settings& settings, const char* text);
    };
    struct Section
    {
        std::string_view header;
        void (*open)(Settings& settings); // makes room for what is below the header
        const KnownKey* first;
        const KnownKey* last;
    };

    SettingsVisitor();

    const Settings& settings() const { return settings_; }

    void beginTable() override { path_.clear(); }
    void beginArrayTable() override { path_.clear(); }
    void endTable() override { openSection(); }
    void endArrayTable() override { openSection(); }
    void beginKeyValue() override;
    void endKeyValue() override;
    void visitBareKey(const char* text) override { append(text); }
    void visitQuotedKey(const char* text) override;

    void visitBasicString(const char* text) override { value(Kind::string, text); }
    void visitMultilineBasicString(const char* text) override { value(Kind::string, text); }
    void visitLiteralString(const char* text) override { value(Kind::string, text); }
    void visitMultilineLiteralString(const char* text) override { value(Kind::string, text); }
    void visitInteger(const char* text) override { value(Kind::integer, text); }
    void visitFloat(const char* text) override { value(Kind::floating, text); }
    void visitBoolean(const char* text) override { value(Kind::boolean, text); }
    void visitOffsetDateTime(const char* text) override { value(Kind::dateTime, text); }
    void visitLocalDateTime(const char* text) override { value(Kind::dateTime, text); }
    void visitLocalDate(const char* text) override { value(Kind::dateTime, text); }
    void visitLocalTime(const char* text) override { value(Kind::dateTime, text); }

private:
    void append(std::string_view part);
    void openSection();
    const KnownKey* knownKey() const;
    void value(Kind kind, const char* text);

    Settings settings_;
    const Section* section_;         // none if nothing below the header is known
    std::string path_;               // of the header, then of the key below it
    std::vector<std::size_t> outer_; // the lengths of the paths around the pair's
    bool lookedUp_ = false;          // whether the next holds for the path
    const KnownKey* known_ = nullptr;
};

} // namespace bench
