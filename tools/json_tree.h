#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tool
{

// The tables, arrays and scalars of a document, in their order.  Levels may be as many as fit
// into memory: nothing here calls itself.
class JsonTree
{
public:
    // The number of a node.  The document's is 0.
    using Node = std::size_t;
    static constexpr Node none = static_cast<Node>(-1);
    static constexpr Node document = 0;

    enum class Kind
    {
        table,
        array,
        scalar,
    };

    // How something was defined decides what may be added to it later.
    enum class Origin
    {
        value,        // a scalar, an array or an inline table: nothing
        header,       // [key], and an element of [[key]]: tables of deeper headers
        deeperHeader, // [key.other]: its own header and what dotted keys and headers add
        dottedKey,    // key.other = 1: what dotted keys and deeper headers add
        arrayHeader,  // [[key]]: elements
    };

    JsonTree() : nodes_(1) {}

    // The value in a table under a key, or `none`.
    Node find(Node table, const std::string& key) const;

    Node add(Node table, const std::string& key, Kind kind, Origin origin);
    Node addElement(Node array, Kind kind, Origin origin);

    // Gives a scalar its text, which is JSON.
    void set(Node scalar, std::string text) { nodes_[scalar].text = std::move(text); }

    Origin origin(Node node) const { return nodes_[node].origin; }
    void setOrigin(Node node, Origin origin) { nodes_[node].origin = origin; }
    bool isArray(Node node) const { return nodes_[node].kind == Kind::array; }
    Node lastElement(Node array) const { return nodes_[array].last; }

    // Where a node is, as a document may write it: servers[0].port.
    std::string pathOf(Node node) const;

    // Prints the document on standard output.
    void print() const;

private:
    friend class JsonPrinter;

    struct Content
    {
        Kind kind = Kind::table;
        Origin origin = Origin::header;
        Node parent = none;
        Node first = none; // of what is in it
        Node last = none;
        Node next = none;                 // in the same table or array
        std::size_t index = 0;            // in an array
        const std::string* key = nullptr; // in a table
        std::string text;                 // of a scalar
    };

    Node append(Node parent, Kind kind, Origin origin);

    std::vector<Content> nodes_;
    std::map<std::pair<Node, std::string>, Node> keys_;
};

// A text as a string of JSON; bytes that are not UTF-8 become U+FFFD.
std::string jsonString(const std::string& text);

// A key as a document may write it: in quotes where it needs them.
std::string writtenKey(const std::string& key);

} // namespace tool
