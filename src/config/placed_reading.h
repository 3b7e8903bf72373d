#pragma once

#include <vorn/parsers/toml_places.h>

#include <cstddef>
#include <string_view>

#include "follower.h"
#include "line_counter.h"

namespace vorn::parsers::toml::config
{

// Gets the calls of a reading, and hands them on to a visitor that is placed as long as this lives.
class PlacedReading final : public ITomlTreeVisitor
{
public:
    PlacedReading(std::string_view document, PlacedVisitor& visitor) noexcept;
    PlacedReading(const PlacedReading&) = delete;
    PlacedReading& operator=(const PlacedReading&) = delete;
    ~PlacedReading() override;

    Place place() noexcept { return offset_ != atNext ? lines_.at(offset_) : nextPlace(); }

    void beginDocument() override;
    void endDocument() override;
    void beginKeyValue() override;
    void endKeyValue() override;
    void beginTable() override;
    void endTable() override;
    void beginArrayTable() override;
    void endArrayTable() override;
    void beginDottedKey() override;
    void endDottedKey() override;
    void visitBareKey(const char* text) override;
    void visitQuotedKey(const char* text) override;
    void beginArray() override;
    void endArray() override;
    void beginInlineTable() override;
    void endInlineTable() override;
    void visitBasicString(const char* text) override;
    void visitMultilineBasicString(const char* text) override;
    void visitLiteralString(const char* text) override;
    void visitMultilineLiteralString(const char* text) override;
    void visitInteger(const char* text) override;
    void visitFloat(const char* text) override;
    void visitBoolean(const char* text) override;
    void visitOffsetDateTime(const char* text) override;
    void visitLocalDateTime(const char* text) override;
    void visitLocalDate(const char* text) override;
    void visitLocalTime(const char* text) override;

    // The reading has ended, by no exception.
    void end() noexcept { isEnded_ = true; }

private:
    // Where the follower goes next, which is looked for if somebody asks.
    static constexpr std::size_t atNext = std::string_view::npos;

    Place nextPlace() noexcept;
    void bracket(char c) noexcept;
    using Operation = void (ITomlTreeVisitor::*)(const char*);
    using Try = bool (Follower::*)(const char*) noexcept;
    using Follow = std::string_view (Follower::*)(const char*) noexcept;

    template <Try quickly, Follow otherwise, Operation operation>
    void follow(const char* text);
    void slowly(Follow way, Operation operation, const char* text);

    std::size_t size_;
    PlacedVisitor& visitor_;
    PlacedReading* before_; // of the same visitor
    Follower follower_;
    LineCounter lines_;
    std::size_t offset_;
    bool isEnded_ = false;
};

} // namespace vorn::parsers::toml::config
