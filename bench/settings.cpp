#include "settings.h"

#include <algorithm>
#include <iterator>

namespace bench
{
namespace
{

namespace toml = vorn::parsers::toml;
using Kind = SettingsVisitor::Kind;
using KnownKey = SettingsVisitor::KnownKey;
using Section = SettingsVisitor::Section;

// What cannot be converted becomes the default of its type.
std::string stringOf(const char* text)
{
    return toml::stringValue(text).value_or("");
}

std::int64_t integerOf(const char* text)
{
    return toml::integerValue(text).value_or(0);
}

double floatOf(const char* text)
{
    return toml::floatValue(text).value_or(0);
}

toml::DateTime dateTimeOf(const char* text)
{
    return toml::dateTimeValue(text).value_or(toml::DateTime());
}

// Stores the value of a key in a member of the last element of a list.
#define STORED_IN(list, member, convert)                                                           \
    [](Settings& settings, const char* text) { settings.list.back().member = convert(text); }
// The same, of an element of an array.
#define ADDED_TO(list, convert)                                                                    \
    [](Settings& settings, const char* text) { settings.list.push_back(convert(text)); }

const KnownKey serviceKeys[] = {
    {"name", Kind::string, STORED_IN(services, name, stringOf)},
    {"command", Kind::string, STORED_IN(services, command, stringOf)},
    {"enabled", Kind::boolean, STORED_IN(services, enabled, toml::booleanValue)},
    {"priority", Kind::integer, STORED_IN(services, priority, integerOf)},
    {"ports", Kind::integer, ADDED_TO(services.back().ports, integerOf)},
    {"timeout", Kind::floating, STORED_IN(services, timeout, floatOf)},
    {"limits.memory", Kind::string, STORED_IN(services, memory, stringOf)},
    {"limits.files", Kind::integer, STORED_IN(services, files, integerOf)},
    {"started", Kind::dateTime, STORED_IN(services, started, dateTimeOf)}};

const KnownKey restartKeys[] = {
    {"policy", Kind::string, STORED_IN(services, policy, stringOf)},
    {"delays", Kind::floating, ADDED_TO(services.back().delays, floatOf)}};

const KnownKey sensorKeys[] = {
    {"unit", Kind::string, STORED_IN(sensors, unit, stringOf)},
    {"offset", Kind::floating, STORED_IN(sensors, offset, floatOf)},
    {"active", Kind::boolean, STORED_IN(sensors, active, toml::booleanValue)}};

const KnownKey entryKeys[] = {
    {"created", Kind::dateTime, STORED_IN(entries, created, dateTimeOf)},
    {"changed", Kind::dateTime, STORED_IN(entries, changed, dateTimeOf)},
    {"window.from", Kind::dateTime, STORED_IN(entries, from, dateTimeOf)},
    {"window.until", Kind::dateTime, STORED_IN(entries, until, dateTimeOf)},
    {"window.zone.id", Kind::integer, STORED_IN(entries, zone, integerOf)}};

const KnownKey looseKeys[] = {{"samples-*", Kind::integer, ADDED_TO(samples, integerOf)},
                              {"text-*", Kind::string, ADDED_TO(texts, stringOf)}};

#undef STORED_IN
#undef ADDED_TO

void openNothing(Settings&)
{
}

// The first is that of the document's start.
const Section sections[] = {
    {"", openNothing, std::begin(looseKeys), std::end(looseKeys)},
    {"service", [](Settings& settings) { settings.services.emplace_back(); },
     std::begin(serviceKeys), std::end(serviceKeys)},
    {"service.restart", openNothing, std::begin(restartKeys), std::end(restartKeys)},
    {"sensor.*", [](Settings& settings) { settings.sensors.emplace_back(); },
     std::begin(sensorKeys), std::end(sensorKeys)},
    {"entry", [](Settings& settings) { settings.entries.emplace_back(); }, std::begin(entryKeys),
     std::end(entryKeys)},
    {"part-*", openNothing, std::begin(looseKeys), std::end(looseKeys)}};

bool matches(std::string_view known, std::string_view path)
{
    if (known.empty() || known.back() != '*')
    {
        return known == path;
    }
    known.remove_suffix(1);
    return path.substr(0, known.size()) == known;
}

} // namespace

SettingsVisitor::SettingsVisitor() : section_(std::begin(sections))
{
}

void SettingsVisitor::append(std::string_view part)
{
    if (!path_.empty())
    {
        path_ += '.';
    }
    path_ += part;
}

void SettingsVisitor::visitQuotedKey(const char* text)
{
    append(stringOf(text));
}

void SettingsVisitor::openSection()
{
    const Section* const found =
        std::find_if(std::begin(sections), std::end(sections),
                     [this](const Section& section) { return matches(section.header, path_); });
    section_ = found == std::end(sections) ? nullptr : found;
    if (section_ != nullptr)
    {
        section_->open(settings_);
    }
    path_.clear();
}

void SettingsVisitor::beginKeyValue()
{
    outer_.push_back(path_.size());
    lookedUp_ = false;
}

void SettingsVisitor::endKeyValue()
{
    path_.resize(outer_.back());
    outer_.pop_back();
    lookedUp_ = false;
}

const KnownKey* SettingsVisitor::knownKey() const
{
    if (section_ == nullptr)
    {
        return nullptr;
    }
    const KnownKey* const found =
        std::find_if(section_->first, section_->last,
                     [this](const KnownKey& key) { return matches(key.path, path_); });
    return found == section_->last ? nullptr : found;
}

// The elements of an array have the key in common.
void SettingsVisitor::value(Kind kind, const char* text)
{
    if (!lookedUp_)
    {
        known_ = knownKey();
        lookedUp_ = true;
    }
    if (known_ != nullptr && known_->kind == kind)
    {
        known_->store(settings_, text);
    }
}

} // namespace bench
