#include "strict_sink.h"

#include "strict_brackets.h"
#include "strict_dates.h"
#include "strict_escapes.h"
#include "strict_numbers.h"

namespace vorn::parsers::toml::diagnosis
{

StrictSink::StrictSink(std::string_view document, std::size_t max)
    : mistakes_(document, max), tables_(document.data() + document.size(), mistakes_)
{
}

void StrictSink::event(Event event)
{
    switch (event)
    {
    case Event::beginTable:
        begin(Statement::header);
        break;
    case Event::beginArrayTable:
        begin(Statement::arrayHeader);
        break;
    case Event::beginKeyValue:
        begin(Statement::pair);
        break;
    case Event::beginDottedKey:
        isDotted_ = true;
        break;
    case Event::endDottedKey:
        isDotted_ = false;
        keyEnd();
        break;
    case Event::beginArray:
        valueBegin(NameKind::array);
        ++depth_;
        break;
    case Event::endArray:
        --depth_;
        break;
    case Event::beginInlineTable:
        valueBegin(NameKind::inlineTable);
        ++depth_;
        inlineTables_.push_back(tables_.beginInlineTable());
        break;
    case Event::endInlineTable:
        --depth_;
        tables_.endInlineTable(inlineTables_.back());
        inlineTables_.pop_back();
        break;
    default:
        break;
    }
}

void StrictSink::text(Event event, std::string_view text)
{
    if (event != Event::visitBareKey && event != Event::visitQuotedKey)
    {
        valueBegin(NameKind::value);
        checkScalar(event, text);
        return;
    }
    if (text[0] == '"')
    {
        checkEscapes(text, mistakes_);
    }
    const char* const keyBegin = innerKey_.empty() ? text.data() : innerKey_.data();
    innerKey_ = {keyBegin, static_cast<std::size_t>(text.data() + text.size() - keyBegin)};
    if (!isDotted_)
    {
        keyEnd();
    }
}

void StrictSink::keyOfPair(Event event, std::string_view text)
{
    PlainSink::keyOfPair(event, text);
    hasEquals_ = true;
}

void StrictSink::lineEnd(const char* /*position*/)
{
    if (statement_ == Statement::header)
    {
        tables_.defineTable(key_);
    }
    else if (statement_ == Statement::arrayHeader)
    {
        checkBrackets(key_, mistakes_);
        tables_.defineArrayElement(key_);
    }
    else
    {
        tables_.definePair(key_, value_);
    }
    mistakes_.keepStatement();
    startStatement();
}

void StrictSink::statementSkipped()
{
    mistakes_.dropStatement();
    if (!inlineTables_.empty())
    {
        tables_.endInlineTable(inlineTables_.front());
        inlineTables_.clear();
    }
    const bool isPair = statement_ == Statement::pair && hasEquals_ && depth_ == 0;
    if (statement_ == Statement::header || statement_ == Statement::arrayHeader)
    {
        // The tables that come may belong to another element than those before.
        tables_.forget();
    }
    else if (!isPair)
    {
        tables_.leaveTable();
    }
    startStatement();
}

// A header, or any pair.
void StrictSink::begin(Statement statement)
{
    if (inlineTables_.empty())
    {
        statement_ = statement;
    }
    innerKey_ = {};
    isDotted_ = false;
}

void StrictSink::keyEnd()
{
    if (inlineTables_.empty())
    {
        key_ = innerKey_;
    }
    else
    {
        name_ = tables_.definePair(inlineTables_.back(), innerKey_);
    }
    awaitsValue_ = true;
}

// A value begins: that of a pair, or an element.
void StrictSink::valueBegin(NameKind kind)
{
    if (!awaitsValue_)
    {
        return;
    }
    awaitsValue_ = false;
    if (inlineTables_.empty())
    {
        hasEquals_ = true;
        value_ = kind;
    }
    else if (name_ != nullptr)
    {
        name_->kind = kind;
    }
}

void StrictSink::checkScalar(Event event, std::string_view text)
{
    switch (event)
    {
    case Event::visitBasicString:
    case Event::visitMultilineBasicString:
        checkEscapes(text, mistakes_);
        break;
    case Event::visitInteger:
        checkInteger(text, mistakes_);
        break;
    case Event::visitOffsetDateTime:
    case Event::visitLocalDateTime:
    case Event::visitLocalDate:
        checkDateTime(text, mistakes_);
        break;
    case Event::visitLocalTime:
        checkTime(text, mistakes_);
        break;
    default:
        break;
    }
}

void StrictSink::startStatement()
{
    statement_ = Statement::unknown;
    key_ = {};
    value_ = NameKind::value;
    depth_ = 0;
    innerKey_ = {};
    isDotted_ = false;
    awaitsValue_ = false;
    hasEquals_ = false;
    name_ = nullptr;
}

} // namespace vorn::parsers::toml::diagnosis
