#include "placed_reading.h"

namespace vorn::parsers::toml::config
{

PlacedReading::PlacedReading(std::string_view document, PlacedVisitor& visitor) noexcept
    : size_(document.size()), visitor_(visitor), before_(visitor.reading_), follower_(document),
      lines_(document), offset_(follower_.position())
{
    visitor_.reading_ = this;
}

PlacedReading::~PlacedReading()
{
    visitor_.last_ = isEnded_ ? Place() : place();
    visitor_.reading_ = before_;
}

Place PlacedReading::nextPlace() noexcept
{
    offset_ = follower_.next();
    return lines_.at(offset_);
}

void PlacedReading::bracket(char c) noexcept
{
    follower_.bracket(c);
    offset_ = follower_.position();
}

// On its own, so that the usual way needs no stack.
[[gnu::noinline]] void PlacedReading::slowly(Follow way, Operation operation, const char* text)
{
    (follower_.*way)(text);
    offset_ = follower_.position();
    (visitor_.*operation)(text);
}

// Inlined, it knows where in their tables the operations are.
template <PlacedReading::Try quickly, PlacedReading::Follow otherwise,
          PlacedReading::Operation operation>
[[gnu::always_inline]] inline void PlacedReading::follow(const char* text)
{
    if (__builtin_expect(static_cast<long>((follower_.*quickly)(text)), 1) == 0)
    {
        slowly(otherwise, operation, text);
        return;
    }
    offset_ = follower_.position();
    (visitor_.*operation)(text);
}

void PlacedReading::beginDocument()
{
    offset_ = follower_.position();
    visitor_.beginDocument();
}

void PlacedReading::endDocument()
{
    offset_ = size_;
    visitor_.endDocument();
}

void PlacedReading::beginKeyValue()
{
    offset_ = atNext;
    visitor_.beginKeyValue();
}

void PlacedReading::endKeyValue()
{
    offset_ = follower_.position();
    visitor_.endKeyValue();
}

void PlacedReading::beginTable()
{
    bracket('[');
    visitor_.beginTable();
}

void PlacedReading::endTable()
{
    bracket(']');
    visitor_.endTable();
}

void PlacedReading::beginArrayTable()
{
    bracket('[');
    follower_.bracket('[');
    visitor_.beginArrayTable();
}

void PlacedReading::endArrayTable()
{
    bracket(']');
    bracket(']');
    visitor_.endArrayTable();
}

void PlacedReading::beginDottedKey()
{
    offset_ = atNext;
    visitor_.beginDottedKey();
}

void PlacedReading::endDottedKey()
{
    offset_ = follower_.position();
    visitor_.endDottedKey();
}

void PlacedReading::visitBareKey(const char* text)
{
    follow<&Follower::tryBareKey, &Follower::token, &ITomlTreeVisitor::visitBareKey>(text);
}

void PlacedReading::visitQuotedKey(const char* text)
{
    follow<&Follower::tryString, &Follower::anyString, &ITomlTreeVisitor::visitQuotedKey>(text);
}

void PlacedReading::beginArray()
{
    bracket('[');
    visitor_.beginArray();
}

void PlacedReading::endArray()
{
    bracket(']');
    visitor_.endArray();
}

void PlacedReading::beginInlineTable()
{
    bracket('{');
    visitor_.beginInlineTable();
}

void PlacedReading::endInlineTable()
{
    bracket('}');
    visitor_.endInlineTable();
}

void PlacedReading::visitBasicString(const char* text)
{
    follow<&Follower::tryBasicString, &Follower::anyString, &ITomlTreeVisitor::visitBasicString>(
        text);
}

void PlacedReading::visitMultilineBasicString(const char* text)
{
    slowly(&Follower::anyString, &ITomlTreeVisitor::visitMultilineBasicString, text);
}

void PlacedReading::visitLiteralString(const char* text)
{
    follow<&Follower::tryLiteralString, &Follower::anyString,
           &ITomlTreeVisitor::visitLiteralString>(text);
}

void PlacedReading::visitMultilineLiteralString(const char* text)
{
    slowly(&Follower::anyString, &ITomlTreeVisitor::visitMultilineLiteralString, text);
}

void PlacedReading::visitInteger(const char* text)
{
    follow<&Follower::tryValue, &Follower::token, &ITomlTreeVisitor::visitInteger>(text);
}

void PlacedReading::visitFloat(const char* text)
{
    follow<&Follower::tryValue, &Follower::token, &ITomlTreeVisitor::visitFloat>(text);
}

void PlacedReading::visitBoolean(const char* text)
{
    follow<&Follower::tryValue, &Follower::token, &ITomlTreeVisitor::visitBoolean>(text);
}

void PlacedReading::visitOffsetDateTime(const char* text)
{
    follow<&Follower::tryDateTime, &Follower::token, &ITomlTreeVisitor::visitOffsetDateTime>(text);
}

void PlacedReading::visitLocalDateTime(const char* text)
{
    follow<&Follower::tryDateTime, &Follower::token, &ITomlTreeVisitor::visitLocalDateTime>(text);
}

void PlacedReading::visitLocalDate(const char* text)
{
    follow<&Follower::tryValue, &Follower::token, &ITomlTreeVisitor::visitLocalDate>(text);
}

void PlacedReading::visitLocalTime(const char* text)
{
    follow<&Follower::tryValue, &Follower::token, &ITomlTreeVisitor::visitLocalTime>(text);
}

} // namespace vorn::parsers::toml::config
