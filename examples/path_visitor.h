// The base of visitors that take values by their paths.
#pragma once

#include <vorn/parsers/toml.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "path.h"

namespace example
{

struct Scalar
{
    enum class Kind
    {
        string,
        integer,
        floatingPoint,
        boolean,
        dateTime, // a date, a time or both
    };

    Kind kind;
    std::string text; // a string's value, escapes resolved; of others the text as written
};

// Follows headers, dotted keys, arrays and inline tables, and hands over every table, array
// and scalar with its path, in the order of the document, each before what is in it.
// An array of tables is an array whose elements are tables, whichever way it is written.
//
// Checks what the library leaves to visitors: that nothing is defined twice, and that no
// table grows where TOML does not allow it.  What is wrong becomes a complaint, and is not
// handed over, nor is anything in it.
class PathVisitor : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    // In the order of the document, each after its path: "dns.port: defined twice".
    const std::vector<std::string>& complaints() const { return complaints_; }

    void beginDocument() override;
    void beginKeyValue() override { beginKey(); }
    void beginTable() override { beginKey(); }
    void endTable() override { beginSection(&PathVisitor::headed); }
    void beginArrayTable() override { beginKey(); }
    void endArrayTable() override { beginSection(&PathVisitor::appended); }
    void visitBareKey(const char* text) override { key_.emplace_back(text); }
    void visitQuotedKey(const char* text) override;
    void beginArray() override;
    void endArray() override { places_.pop_back(); }
    void beginInlineTable() override;
    void endInlineTable() override { places_.pop_back(); }
    void visitBasicString(const char* text) override { visitString(text); }
    void visitMultilineBasicString(const char* text) override { visitString(text); }
    void visitLiteralString(const char* text) override { visitString(text); }
    void visitMultilineLiteralString(const char* text) override { visitString(text); }
    void visitInteger(const char* text) override { visitScalar(Scalar::Kind::integer, text); }
    void visitFloat(const char* text) override { visitScalar(Scalar::Kind::floatingPoint, text); }
    void visitBoolean(const char* text) override { visitScalar(Scalar::Kind::boolean, text); }
    void visitOffsetDateTime(const char* text) override { visitDateTime(text); }
    void visitLocalDateTime(const char* text) override { visitDateTime(text); }
    void visitLocalDate(const char* text) override { visitDateTime(text); }
    void visitLocalTime(const char* text) override { visitDateTime(text); }

protected:
    // A table or an array starts.  Returns whether what is in it is wanted.
    virtual bool table(const Path& path) = 0;
    virtual bool array(const Path& path) = 0;
    // A BadValue that this throws becomes a complaint.
    virtual void scalar(const Path& path, const Scalar& scalar) = 0;

    void complain(const Path& path, const std::string& message);

private:
    // How something was defined decides what may be added to it later.
    enum class Origin
    {
        value,        // a scalar, an array or an inline table: nothing
        header,       // [key], and an element of [[key]]: tables of deeper headers
        deeperHeader, // [key.other]: its own header and what dotted keys and headers add
        dottedKey,    // key.other = 1: what dotted keys and deeper headers add
        arrayHeader,  // [[key]]: elements
    };

    struct Definition
    {
        Origin origin = Origin::value;
        bool wanted = true;
        std::size_t elements = 0; // of arrayHeader
    };

    // Where values go.
    struct Place
    {
        Path path;
        bool wanted = true;
        bool isArray = false;
        std::size_t elements = 0; // so far, of an array
    };

    void beginKey();
    void beginSection(Place (PathVisitor::*open)(const Path&));
    Place headed(const Path& path);
    Place appended(const Path& path);
    Place deeper(const Place& around, const std::string& key);
    Place dotted(const Place& around, const std::string& key);
    Place nextValue();
    void visitScalar(Scalar::Kind kind, const std::string& text);
    void visitString(const char* text) { visitScalar(Scalar::Kind::string, text); }
    void visitDateTime(const char* text) { visitScalar(Scalar::Kind::dateTime, text); }

    Definition* find(const Path& path);
    Place define(const Path& path, Origin origin, bool wanted);
    Place refuse(const Path& path, const std::string& message);

    std::map<std::string, Definition> definitions_; // by the texts of their paths
    std::vector<Place> places_;    // the section, and the arrays and inline tables being read
    std::vector<std::string> key_; // the parts of the key being read
    bool keyIsRight_ = true;
    std::vector<std::string> complaints_;
};

// Reads a file.  Returns true if the document is valid; use what the visitor has gathered
// only then.  Otherwise the log or standard error says what is wrong.
bool readFile(const std::string& path, PathVisitor& visitor);

} // namespace example
