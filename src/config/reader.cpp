#include "reader.h"

#include <optional>
#include <utility>

#include <vorn/parsers/toml_values.h>

#include "assignment.h"
#include "shown_text.h"

namespace vorn::parsers::toml::config
{

Reader::Reader(const std::string& document, Navigation& navigation, StrictFindings& strict)
    : follower_(document), navigation_(navigation), strict_(strict)
{
    frames_.push_back({Navigation::root()});
}

void Reader::beginHeader()
{
    follower_.bracket('[');
    frames_.front().position = {};
    position_ = Navigation::root();
    way_ = How::headerOfMore;
    hasPending_ = false;
}

void Reader::beginTable()
{
    beginHeader();
}

void Reader::endTable()
{
    follower_.bracket(']');
    if (position_.isSomewhere())
    {
        frames_.front().position = navigation_.header(position_, pending_);
    }
}

void Reader::beginArrayTable()
{
    beginHeader();
    follower_.bracket('[');
}

void Reader::endArrayTable()
{
    follower_.bracket(']');
    follower_.bracket(']');
    if (position_.isSomewhere())
    {
        frames_.front().position = navigation_.arrayHeader(position_, pending_);
    }
}

void Reader::beginKeyValue()
{
    position_ = frames_.back().position;
    way_ = How::dottedKey;
    hasPending_ = false;
}

void Reader::visitBareKey(const char* text)
{
    key(follower_.bareKey(text));
}

void Reader::visitQuotedKey(const char* text)
{
    const std::string_view whole = follower_.string(text);
    std::optional<std::string> name = stringValue(whole);
    if (hasPending_)
    {
        passPending(); // whose name may be where this one goes
    }
    if (!name && ignored_ == 0 && position_.isSomewhere())
    {
        Slot slot;
        slot.parent = position_.container;
        reportNoValue(slot, {ScalarKind::string, whole, follower_.position()}, "is no key");
        position_ = {};
    }
    name_ = name ? std::move(*name) : std::string();
    key(name_);
}

// Only the last part of a key says what is filled; the others lead there.
void Reader::key(std::string_view name)
{
    if (hasPending_)
    {
        passPending();
    }
    pending_ = {name, follower_.position()};
    hasPending_ = true;
}

void Reader::passPending()
{
    if (ignored_ == 0 && position_.isSomewhere())
    {
        position_ = navigation_.pass(position_, pending_, way_);
    }
    hasPending_ = false;
}

// Where the value goes that comes now.
Slot Reader::nextSlot()
{
    if (const std::uint32_t list = frames_.back().list; list != none)
    {
        return navigation_.append(list, follower_.position());
    }
    return position_.isSomewhere() ? navigation_.find(position_, pending_, How::value) : Slot();
}

void Reader::beginArray()
{
    follower_.bracket('[');
    if (ignored_ > 0)
    {
        ++ignored_;
        return;
    }
    const std::uint32_t list = navigation_.openList(nextSlot(), spot(), "an array");
    if (list == none)
    {
        ++ignored_;
        return;
    }
    frames_.push_back({{}, list});
}

void Reader::endArray()
{
    follower_.bracket(']');
    if (ignored_ > 0)
    {
        --ignored_;
        return;
    }
    navigation_.close(frames_.back().list);
    frames_.pop_back();
}

void Reader::beginInlineTable()
{
    follower_.bracket('{');
    if (ignored_ > 0)
    {
        ++ignored_;
        return;
    }
    const Position position = navigation_.enter(nextSlot(), spot(), "a table");
    if (!position.isSomewhere())
    {
        ++ignored_;
        return;
    }
    frames_.push_back({position});
}

void Reader::endInlineTable()
{
    follower_.bracket('}');
    if (ignored_ > 0)
    {
        --ignored_;
        return;
    }
    frames_.pop_back();
    if (const std::uint32_t list = frames_.back().list; list != none)
    {
        navigation_.closeElement(list);
    }
}

void Reader::string(const char* text)
{
    const std::string_view whole = follower_.string(text);
    scalar({ScalarKind::string, whole, follower_.position()});
}

void Reader::plain(ScalarKind kind, const char* text)
{
    const bool isDateTime = kind == ScalarKind::dateTime;
    const std::string_view whole = isDateTime ? follower_.dateTime(text) : follower_.value(text);
    scalar({kind, whole, follower_.position()});
}

void Reader::scalar(const Scalar& scalar)
{
    if (ignored_ > 0)
    {
        return;
    }
    const Slot slot = nextSlot();
    if (slot.type == nullptr)
    {
        if (slot.node != none)
        {
            navigation_.report(slot, navigation_.spotOf(scalar.offset),
                               std::string("should be a table, is ") + nameOf(scalar.kind));
        }
        return;
    }
    const Content content = contentOf(slot);
    Complaint complaint = assign(scalar, *content.type, *slot.entry, content.object);
    if (complaint.isNoValue)
    {
        reportNoValue(slot, scalar, std::move(complaint.message));
        return;
    }
    if (complaint.message.empty() && slot.node != none && slot.entry->check)
    {
        complaint.message = printable(slot.entry->check(slot.object));
    }
    if (!complaint.message.empty())
    {
        navigation_.report(slot, navigation_.spotOf(scalar.offset), std::move(complaint.message),
                           std::move(complaint.hint));
    }
}

// The diagnosis has the better words.
void Reader::reportNoValue(const Slot& slot, const Scalar& scalar, std::string&& message)
{
    const Finding* const finding =
        strict_.noValueIn(scalar.offset, scalar.offset + scalar.text.size());
    const bool isKnown = finding != nullptr;
    navigation_.report(slot, navigation_.spotOf(isKnown ? finding->begin : scalar.offset),
                       isKnown ? std::string(finding->message) : std::move(message),
                       isKnown ? std::string(finding->hint) : std::string());
}

} // namespace vorn::parsers::toml::config
