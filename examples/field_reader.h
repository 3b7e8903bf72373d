// A visitor that fills structs; tables tell it which keys there may be.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "path_visitor.h"
#include "value.h"

namespace example
{

// What a configuration may hold, by the patterns of paths.
template <typename Config>
struct Schema
{
    // Called when a table or an array starts, to make what it is read into.
    using Maker = std::function<void(Config& config)>;
    // Called for scalars.
    using Setter = std::function<void(Config& config, const Path& path, const Scalar& scalar)>;

    std::map<std::string, Maker> makers;
    std::map<std::string, Setter> fields; // a `*` as the last key stands for any
};

// Complains about keys that the schema does not have, and about scalars, arrays and tables
// where another of these is expected.
template <typename Config>
class FieldReader : public PathVisitor
{
public:
    explicit FieldReader(const Schema<Config>& schema) : schema_(schema) {}

    // Use them once the document is known to be valid.
    const Config& config() const { return config_; }

private:
    bool table(const Path& path) override { return begin(path, "."); }
    bool array(const Path& path) override { return begin(path, "[]"); }

    // `inside` is what follows in the patterns of the elements.
    bool begin(const Path& path, const char* inside)
    {
        const std::string pattern = path.pattern();
        if (!hasFields(pattern + inside))
        {
            complain(path, whatIsWrong(path));
            return false;
        }
        if (const auto maker = schema_.makers.find(pattern); maker != schema_.makers.end())
        {
            maker->second(config_);
        }
        return true;
    }

    void scalar(const Path& path, const Scalar& scalar) override
    {
        const auto field = find(path);
        if (field == schema_.fields.end())
        {
            throw BadValue(whatIsWrong(path));
        }
        field->second(config_, path, scalar);
    }

    auto find(const Path& path) const
    {
        const auto field = schema_.fields.find(path.pattern());
        return field != schema_.fields.end() ? field
                                             : schema_.fields.find(path.parent().pattern() + ".*");
    }

    bool hasFields(const std::string& prefix) const
    {
        const auto first = schema_.fields.lower_bound(prefix);
        return first != schema_.fields.end() && first->first.compare(0, prefix.size(), prefix) == 0;
    }

    std::string whatIsWrong(const Path& path) const
    {
        const std::string pattern = path.pattern();
        if (hasFields(pattern + '.'))
        {
            return "should be a table";
        }
        if (hasFields(pattern + "[]"))
        {
            return "should be an array";
        }
        return find(path) == schema_.fields.end() ? "unknown key" : "should be a single value";
    }

    const Schema<Config>& schema_;
    Config config_;
};

} // namespace example
