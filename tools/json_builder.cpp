#include "json_builder.h"

#include "json_value.h"

namespace tool
{

void JsonBuilder::visitQuotedKey(const char* text)
{
    try
    {
        key_.push_back(stringValue(text));
    }
    catch (const BadValue& error)
    {
        if (places_.back() != JsonTree::none)
        {
            complain(places_.back(), writtenKey(text), error.what());
        }
        keyIsGood_ = false;
    }
}

void JsonBuilder::beginKey()
{
    key_.clear();
    keyIsGood_ = true;
}

// Goes to the place that a header leads to: the pairs up to the next header belong there.
void JsonBuilder::beginSection(Node (JsonBuilder::*open)(Node around, const std::string& key))
{
    Node place = keyIsGood_ ? JsonTree::document : JsonTree::none;
    for (std::size_t i = 0; place != JsonTree::none && i + 1 < key_.size(); ++i)
    {
        place = deeper(place, key_[i]);
    }
    places_.assign(1, place != JsonTree::none ? (this->*open)(place, key_.back()) : place);
}

// The table of [path].
JsonTree::Node JsonBuilder::headed(Node around, const std::string& key)
{
    const Node known = tree_.find(around, key);
    if (known == JsonTree::none)
    {
        return tree_.add(around, key, JsonTree::Kind::table, JsonTree::Origin::header);
    }
    if (tree_.origin(known) != JsonTree::Origin::deeperHeader)
    {
        return refuse(known, "defined twice");
    }
    tree_.setOrigin(known, JsonTree::Origin::header);
    return known;
}

// The new element of [[path]].
JsonTree::Node JsonBuilder::appended(Node around, const std::string& key)
{
    Node array = tree_.find(around, key);
    if (array == JsonTree::none)
    {
        array = tree_.add(around, key, JsonTree::Kind::array, JsonTree::Origin::arrayHeader);
    }
    if (tree_.origin(array) != JsonTree::Origin::arrayHeader)
    {
        return refuse(array, "defined twice");
    }
    return tree_.addElement(array, JsonTree::Kind::table, JsonTree::Origin::header);
}

// The table that a header's key goes through on its way: of an array, the last element.
JsonTree::Node JsonBuilder::deeper(Node around, const std::string& key)
{
    const Node known = tree_.find(around, key);
    if (known == JsonTree::none)
    {
        return tree_.add(around, key, JsonTree::Kind::table, JsonTree::Origin::deeperHeader);
    }
    switch (tree_.origin(known))
    {
    case JsonTree::Origin::value:
        return refuse(known, "cannot be extended here");
    case JsonTree::Origin::arrayHeader:
        return tree_.lastElement(known);
    default:
        return known;
    }
}

// The table that a dotted key goes through on its way.
JsonTree::Node JsonBuilder::dotted(Node around, const std::string& key)
{
    const Node known = tree_.find(around, key);
    if (known == JsonTree::none)
    {
        return tree_.add(around, key, JsonTree::Kind::table, JsonTree::Origin::dottedKey);
    }
    if (tree_.origin(known) == JsonTree::Origin::deeperHeader)
    {
        tree_.setOrigin(known, JsonTree::Origin::dottedKey);
    }
    return tree_.origin(known) == JsonTree::Origin::dottedKey
               ? known
               : refuse(known, "cannot be extended here");
}

// The value that starts: in an array the next element, otherwise what the key leads to.
JsonTree::Node JsonBuilder::nextValue(JsonTree::Kind kind)
{
    Node place = places_.back();
    if (place != JsonTree::none && tree_.isArray(place))
    {
        return tree_.addElement(place, kind, JsonTree::Origin::value);
    }
    place = keyIsGood_ ? place : JsonTree::none;
    for (std::size_t i = 0; place != JsonTree::none && i + 1 < key_.size(); ++i)
    {
        place = dotted(place, key_[i]);
    }
    if (place == JsonTree::none)
    {
        return place;
    }
    const Node known = tree_.find(place, key_.back());
    return known == JsonTree::none ? tree_.add(place, key_.back(), kind, JsonTree::Origin::value)
                                   : refuse(known, "defined twice");
}

template <typename JsonOf>
void JsonBuilder::visitScalar(const char* text, JsonOf jsonOf)
{
    const Node node = nextValue(JsonTree::Kind::scalar);
    if (node == JsonTree::none)
    {
        return;
    }
    try
    {
        tree_.set(node, jsonOf(text));
    }
    catch (const BadValue& error)
    {
        refuse(node, error.what());
    }
}

void JsonBuilder::visitInteger(const char* text)
{
    visitScalar(text, jsonOfInteger);
}

void JsonBuilder::visitFloat(const char* text)
{
    visitScalar(text, jsonOfFloat);
}

void JsonBuilder::visitBoolean(const char* text)
{
    visitScalar(text, [](const std::string& value) { return value; });
}

void JsonBuilder::visitString(const char* text)
{
    visitScalar(text, [](const std::string& value) { return jsonString(stringValue(value)); });
}

void JsonBuilder::visitDateTime(const char* text)
{
    visitScalar(text, jsonString);
}

JsonTree::Node JsonBuilder::refuse(Node node, const char* reason)
{
    complain(node, "", reason);
    return JsonTree::none;
}

// About something in a table, or about that itself.
void JsonBuilder::complain(Node around, const std::string& last, const char* reason)
{
    constexpr std::size_t maxComplaints = 20;
    if (complaints_.size() == maxComplaints)
    {
        ++moreComplaints_;
        return;
    }
    const std::string path = tree_.pathOf(around);
    const bool isJoined = !path.empty() && !last.empty();
    complaints_.push_back(path + (isJoined ? "." : "") + last + ": " + reason);
}

} // namespace tool
