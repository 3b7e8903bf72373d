// Syntax trees as text and back.
//
//   KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_INTEGER(DEC_INT "1")) NL "\n" EOF
//
// A node is its type's name and, in quotes, its text.  The text is left out for imaginary
// nodes, whose text is their name, and for the end of input.  Children follow in
// parentheses; the nodes of a list are separated by blanks.  In a text, a backslash stands
// before a quote and a backslash, and \n, \r and \t are what they are in C++.
#pragma once

#include <antlr3.h>

#include <deque>
#include <string>

namespace test
{

// The text of a tree, or of a list; empty for none.
std::string treeText(pANTLR3_BASE_TREE tree);

// Builds trees, also such as the parser never makes, and owns them.
class TreeBuilder
{
public:
    TreeBuilder();
    TreeBuilder(const TreeBuilder&) = delete;
    TreeBuilder& operator=(const TreeBuilder&) = delete;
    ~TreeBuilder();

    // The list of the trees in `text`.  Two things go beyond what treeText() writes:
    // empty parentheses make a node that has a list of children with nothing in it, so
    // that only the markers around its children are in the node stream, and a token
    // without a text has none.
    pANTLR3_BASE_TREE build(const std::string& text);

private:
    class Reader;

    pANTLR3_STRING_FACTORY strings_;
    pANTLR3_BASE_TREE_ADAPTOR adaptor_;
    std::deque<std::string> texts_; // what the nodes point to
};

} // namespace test
