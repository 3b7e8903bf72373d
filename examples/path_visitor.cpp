#include "path_visitor.h"

#include <cstdio>

#include "value.h"

namespace example
{

void PathVisitor::beginDocument()
{
    definitions_.clear();
    complaints_.clear();
    places_.assign(1, Place());
}

void PathVisitor::visitQuotedKey(const char* text)
{
    try
    {
        key_.push_back(stringValue(text));
    }
    catch (const BadValue& error)
    {
        complain(places_.back().path / text, error.what());
        keyIsRight_ = false;
    }
}

void PathVisitor::beginArray()
{
    Place place = nextValue();
    place.wanted = place.wanted && array(place.path);
    place.isArray = true;
    places_.push_back(place);
}

void PathVisitor::beginInlineTable()
{
    Place place = nextValue();
    place.wanted = place.wanted && table(place.path);
    places_.push_back(place);
}

void PathVisitor::complain(const Path& path, const std::string& message)
{
    complaints_.push_back(path.text() + ": " + message);
}

void PathVisitor::beginKey()
{
    key_.clear();
    keyIsRight_ = true;
}

// Goes to the place that a header leads to: the pairs up to the next header belong there.
void PathVisitor::beginSection(Place (PathVisitor::*open)(const Path&))
{
    Place place;
    place.wanted = keyIsRight_;
    for (std::size_t i = 0; place.wanted && i + 1 < key_.size(); ++i)
    {
        place = deeper(place, key_[i]);
    }
    if (place.wanted)
    {
        place = (this->*open)(place.path / key_.back());
    }
    places_.assign(1, place);
}

// The table of [path].
PathVisitor::Place PathVisitor::headed(const Path& path)
{
    Definition* const known = find(path);
    if (known == nullptr)
    {
        return define(path, Origin::header, table(path));
    }
    if (known->origin != Origin::deeperHeader)
    {
        return refuse(path, "defined twice");
    }
    known->origin = Origin::header;
    return {path, known->wanted};
}

// The new element of [[path]].
PathVisitor::Place PathVisitor::appended(const Path& path)
{
    if (find(path) == nullptr)
    {
        define(path, Origin::arrayHeader, array(path));
    }
    Definition& known = *find(path);
    if (known.origin != Origin::arrayHeader)
    {
        return refuse(path, "defined twice");
    }
    if (!known.wanted)
    {
        return {path, false};
    }
    const Path element = path / known.elements++;
    return define(element, Origin::header, table(element));
}

// The table that a header's key goes through on its way: of an array, the last element.
PathVisitor::Place PathVisitor::deeper(const Place& around, const std::string& key)
{
    const Path path = around.path / key;
    const Definition* const known = find(path);
    if (known == nullptr)
    {
        return define(path, Origin::deeperHeader, table(path));
    }
    if (known->origin == Origin::value)
    {
        return refuse(path, "cannot be extended here");
    }
    if (known->origin == Origin::arrayHeader && known->wanted)
    {
        const Path last = path / (known->elements - 1);
        return {last, find(last)->wanted};
    }
    return {path, known->wanted};
}

// The table that a dotted key goes through on its way.
PathVisitor::Place PathVisitor::dotted(const Place& around, const std::string& key)
{
    const Path path = around.path / key;
    Definition* const known = find(path);
    if (known == nullptr)
    {
        return define(path, Origin::dottedKey, table(path));
    }
    if (known->origin == Origin::deeperHeader)
    {
        known->origin = Origin::dottedKey;
    }
    if (known->origin != Origin::dottedKey)
    {
        return refuse(path, "cannot be extended here");
    }
    return {path, known->wanted};
}

// The place of the value that starts: in an array the next element, otherwise what the key
// leads to.
PathVisitor::Place PathVisitor::nextValue()
{
    Place& around = places_.back();
    if (around.isArray)
    {
        return {around.path / around.elements++, around.wanted};
    }
    Place place = {around.path, around.wanted && keyIsRight_};
    for (std::size_t i = 0; place.wanted && i + 1 < key_.size(); ++i)
    {
        place = dotted(place, key_[i]);
    }
    if (!place.wanted)
    {
        return place;
    }
    const Path path = place.path / key_.back();
    return find(path) == nullptr ? define(path, Origin::value, true)
                                 : refuse(path, "defined twice");
}

void PathVisitor::visitScalar(Scalar::Kind kind, const std::string& text)
{
    const Place place = nextValue();
    if (!place.wanted)
    {
        return;
    }
    try
    {
        scalar(place.path, {kind, kind == Scalar::Kind::string ? stringValue(text) : text});
    }
    catch (const BadValue& error)
    {
        complain(place.path, error.what());
    }
}

PathVisitor::Definition* PathVisitor::find(const Path& path)
{
    const auto definition = definitions_.find(path.text());
    return definition != definitions_.end() ? &definition->second : nullptr;
}

PathVisitor::Place PathVisitor::define(const Path& path, Origin origin, bool wanted)
{
    definitions_[path.text()] = {origin, wanted};
    return {path, wanted};
}

PathVisitor::Place PathVisitor::refuse(const Path& path, const std::string& message)
{
    complain(path, message);
    return {path, false};
}

bool readFile(const std::string& path, PathVisitor& visitor)
{
    if (!visitTomlTree(vorn::parsers::toml::FilePath(path), visitor))
    {
        // The calls for an invalid document may lack some of its lines, so the complaints
        // may be about things that are not there.
        return false;
    }
    for (const std::string& complaint : visitor.complaints())
    {
        std::fprintf(stderr, "%s: %s\n", path.c_str(), complaint.c_str());
    }
    return visitor.complaints().empty();
}

} // namespace example
