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

void PlacedReading::bracket(char c) noexcept
{
    follower_.bracket(c);
    offset_ = follower_.position();
}

void PlacedReading::token(const char* text) noexcept
{
    follower_.token(text);
    offset_ = follower_.position();
}

void PlacedReading::string(const char* text) noexcept
{
    follower_.string(text);
    offset_ = follower_.position();
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
    offset_ = follower_.next();
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
    offset_ = follower_.next();
    visitor_.beginDottedKey();
}

void PlacedReading::endDottedKey()
{
    offset_ = follower_.position();
    visitor_.endDottedKey();
}

void PlacedReading::visitBareKey(const char* text)
{
    token(text);
    visitor_.visitBareKey(text);
}

void PlacedReading::visitQuotedKey(const char* text)
{
    string(text);
    visitor_.visitQuotedKey(text);
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
    string(text);
    visitor_.visitBasicString(text);
}

void PlacedReading::visitMultilineBasicString(const char* text)
{
    string(text);
    visitor_.visitMultilineBasicString(text);
}

void PlacedReading::visitLiteralString(const char* text)
{
    string(text);
    visitor_.visitLiteralString(text);
}

void PlacedReading::visitMultilineLiteralString(const char* text)
{
    string(text);
    visitor_.visitMultilineLiteralString(text);
}

void PlacedReading::visitInteger(const char* text)
{
    token(text);
    visitor_.visitInteger(text);
}

void PlacedReading::visitFloat(const char* text)
{
    token(text);
    visitor_.visitFloat(text);
}

void PlacedReading::visitBoolean(const char* text)
{
    token(text);
    visitor_.visitBoolean(text);
}

void PlacedReading::visitOffsetDateTime(const char* text)
{
    token(text);
    visitor_.visitOffsetDateTime(text);
}

void PlacedReading::visitLocalDateTime(const char* text)
{
    token(text);
    visitor_.visitLocalDateTime(text);
}

void PlacedReading::visitLocalDate(const char* text)
{
    token(text);
    visitor_.visitLocalDate(text);
}

void PlacedReading::visitLocalTime(const char* text)
{
    token(text);
    visitor_.visitLocalTime(text);
}

} // namespace vorn::parsers::toml::config
