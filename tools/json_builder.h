#pragma once

#include <vorn/parsers/toml.h>

#include <string>
#include <vector>

#include "json_tree.h"

namespace tool
{

// Makes a tree out of the visitor calls.  Checks what the library leaves to visitors: that
// nothing is defined twice, that no table grows where TOML does not allow it, and that values
// are in the range.  What is wrong becomes a complaint, and what is in it is passed over.
class JsonBuilder : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    const JsonTree& tree() const { return tree_; }

    // The first ones, each after its path: "dns.port: defined twice".
    const std::vector<std::string>& complaints() const { return complaints_; }

    // How many there are besides.
    std::size_t moreComplaints() const { return moreComplaints_; }

    void beginKeyValue() override { beginKey(); }
    void beginTable() override { beginKey(); }
    void endTable() override { beginSection(&JsonBuilder::headed); }
    void beginArrayTable() override { beginKey(); }
    void endArrayTable() override { beginSection(&JsonBuilder::appended); }
    void visitBareKey(const char* text) override { key_.emplace_back(text); }
    void visitQuotedKey(const char* text) override;
    void beginArray() override { places_.push_back(nextValue(JsonTree::Kind::array)); }
    void endArray() override { places_.pop_back(); }
    void beginInlineTable() override { places_.push_back(nextValue(JsonTree::Kind::table)); }
    void endInlineTable() override { places_.pop_back(); }
    void visitBasicString(const char* text) override { visitString(text); }
    void visitMultilineBasicString(const char* text) override { visitString(text); }
    void visitLiteralString(const char* text) override { visitString(text); }
    void visitMultilineLiteralString(const char* text) override { visitString(text); }
    void visitInteger(const char* text) override;
    void visitFloat(const char* text) override;
    void visitBoolean(const char* text) override;
    void visitOffsetDateTime(const char* text) override { visitDateTime(text); }
    void visitLocalDateTime(const char* text) override { visitDateTime(text); }
    void visitLocalDate(const char* text) override { visitDateTime(text); }
    void visitLocalTime(const char* text) override { visitDateTime(text); }

private:
    using Node = JsonTree::Node; // `none` for a place that is passed over

    void beginKey();
    void beginSection(Node (JsonBuilder::*open)(Node around, const std::string& key));
    Node headed(Node around, const std::string& key);
    Node appended(Node around, const std::string& key);
    Node deeper(Node around, const std::string& key);
    Node dotted(Node around, const std::string& key);
    Node nextValue(JsonTree::Kind kind);
    void visitString(const char* text);
    void visitDateTime(const char* text);
    template <typename JsonOf>
    void visitScalar(const char* text, JsonOf jsonOf);
    Node refuse(Node node, const char* reason);
    void complain(Node around, const std::string& last, const char* reason);

    JsonTree tree_;
    std::vector<Node> places_ = {JsonTree::document}; // the section, and what is open in it
    std::vector<std::string> key_;                    // the parts of the key being read
    bool keyIsGood_ = true;
    std::vector<std::string> complaints_;
    std::size_t moreComplaints_ = 0;
};

} // namespace tool
