// Prints a TOML document as JSON: toml_to_json FILE
//
// Keys keep their order, tables and arrays become objects and arrays.  JSON has no dates
// and times, infinities and not-a-numbers: they become strings, dates and times as they
// are written, the others as "inf", "-inf" and "nan".  Bytes that are not UTF-8 become
// U+FFFD.
//
// Exit status: 0 done, 1 the document is wrong, 2 wrong usage.  Standard error says what is
// wrong: duplicate keys, tables that are defined again, escapes that are no character,
// integers beyond 64 bits.
#include <vorn/parsers/toml.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>

#include "path_visitor.h"
#include "value.h"

namespace
{

using example::Path;
using example::Scalar;
using Json = nlohmann::ordered_json;

// Any integer of 64 bits.  parseInteger() would return the nearest one for a larger integer,
// and takes at most 32 bits of a binary one.
Json integer(std::string text)
{
    static const std::map<std::string, int> bases = {{"0x", 16}, {"0o", 8}, {"0b", 2}};
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
    int base = 10;
    if (const auto prefix = bases.find(text.substr(0, 2)); prefix != bases.end())
    {
        base = prefix->second;
        text.erase(0, 2);
    }
    else if (text[0] == '+')
    {
        text.erase(0, 1);
    }
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value, base).ec != std::errc())
    {
        throw example::BadValue("does not fit into 64 bits");
    }
    return value;
}

Json floatingPoint(const std::string& text)
{
    const double value = example::floatValue(text);
    if (std::isnan(value))
    {
        return "nan";
    }
    if (std::isinf(value))
    {
        return value < 0 ? "-inf" : "inf";
    }
    return value;
}

Json json(const Scalar& scalar)
{
    switch (scalar.kind)
    {
    case Scalar::Kind::integer:
        return integer(scalar.text);
    case Scalar::Kind::floatingPoint:
        return floatingPoint(scalar.text);
    case Scalar::Kind::boolean:
        return vorn::parsers::toml::parseBoolean(scalar.text);
    case Scalar::Kind::string:
    case Scalar::Kind::dateTime:
        break;
    }
    return scalar.text;
}

class JsonBuilder : public example::PathVisitor
{
public:
    const Json& document() const { return document_; }

private:
    bool table(const Path& path) override
    {
        at(path) = Json::object();
        return true;
    }

    bool array(const Path& path) override
    {
        at(path) = Json::array();
        return true;
    }

    void scalar(const Path& path, const Scalar& scalar) override { at(path) = json(scalar); }

    // The value at a path, which is made if it is not there.
    Json& at(const Path& path)
    {
        Json* place = &document_;
        for (const Path::Step& step : path.steps())
        {
            place = std::visit([place](const auto& key) { return &(*place)[key]; }, step);
        }
        return *place;
    }

    Json document_ = Json::object();
};

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what is not caught is a lack of memory.
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("Usage: toml_to_json FILE\n", stderr);
        return 2;
    }
    JsonBuilder builder;
    if (!example::readFile(argv[1], builder))
    {
        return 1;
    }
    const std::string text = builder.document().dump(2, ' ', false, Json::error_handler_t::replace);
    std::puts(text.c_str());
    return 0;
}
