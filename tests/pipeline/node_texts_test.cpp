// The texts of nodes that a tree parser gets.
#include <gtest/gtest.h>

#include "pipeline/node_texts.h"

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/stderr_capture.h"

#include "support/parser_pipeline.h"

using namespace std::string_literals;
using vorn::parsers::toml::NodeTexts;

namespace
{

std::string charactersOf(pANTLR3_STRING string)
{
    return reinterpret_cast<const char*>(string->chars);
}

// The nodes of a document, with the stream's texts replaced.
class Nodes
{
public:
    explicit Nodes(std::string text)
        : text_(std::move(text)), pipeline_(text_),
          root_(pipeline_.parser()->document(pipeline_.parser()).tree),
          stream_(antlr3CommonTreeNodeStreamNewTree(root_, 100)),
          runtimeToString_(stream_->tnstream->toStringSS), texts_(stream_.get())
    {
    }

    // By the numbers of the children, from the root.
    pANTLR3_BASE_TREE at(const std::vector<ANTLR3_UINT32>& path) const
    {
        pANTLR3_BASE_TREE node = root_;
        for (const ANTLR3_UINT32 child : path)
        {
            node = static_cast<pANTLR3_BASE_TREE>(node->getChild(node, child));
        }
        return node;
    }

    pANTLR3_STRING string(pANTLR3_BASE_TREE first, pANTLR3_BASE_TREE last) const
    {
        return stream_->tnstream->toStringSS(stream_->tnstream, first, last);
    }
    pANTLR3_STRING string(pANTLR3_BASE_TREE node) const { return string(node, node); }
    std::string text(pANTLR3_BASE_TREE node) const { return charactersOf(string(node)); }

    std::string runtimeText(pANTLR3_BASE_TREE first, pANTLR3_BASE_TREE last) const
    {
        return charactersOf(runtimeToString_(stream_->tnstream, first, last));
    }

    // How many strings the stream's factory has made.
    ANTLR3_UINT32 strings() const { return stream_->stringFactory->index; }

private:
    std::string text_;
    test::ParserPipeline pipeline_;
    pANTLR3_BASE_TREE root_;
    std::unique_ptr<ANTLR3_COMMON_TREE_NODE_STREAM, test::FreeRecogniser> stream_;
    decltype(ANTLR3_TREE_NODE_STREAM::toStringSS) runtimeToString_;
    NodeTexts texts_;
};

// Of a pair that is the first line: KEYVAL(KEY_...(token), VAL_...(token)).
const std::vector<ANTLR3_UINT32> keyToken = {0, 0, 0};
const std::vector<ANTLR3_UINT32> valueToken = {0, 1, 0};

void visitNodes(pANTLR3_BASE_TREE node, std::vector<pANTLR3_BASE_TREE>& nodes)
{
    nodes.push_back(node);
    for (ANTLR3_UINT32 index = 0; index < node->getChildCount(node); ++index)
    {
        visitNodes(static_cast<pANTLR3_BASE_TREE>(node->getChild(node, index)), nodes);
    }
}

} // namespace

TEST(NodeTexts, ofLexedNodesAreTheirTokens)
{
    for (const auto& [text, key, value] : std::vector<std::array<std::string, 3>>{
             {"a = 1\n", "a", "1"},
             {"\"a b\" = 'c'\n", "\"a b\"", "'c'"},
             {"k-1 = 1979-05-27T07:32:00Z\n", "k-1", "1979-05-27T07:32:00Z"},
             {"'\xc3\xa9' = '\xe2\x82\xac'\n", "'\xc3\xa9'", "'\xe2\x82\xac'"},
             {"'' = '''\n\n'''\n", "''", "'''\n\n'''"},
             {"'a\0b' = 'c\0d'\n"s, "'a", "'c"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Nodes nodes(text);
        const ANTLR3_UINT32 strings = nodes.strings();
        EXPECT_EQ(nodes.text(nodes.at(keyToken)), key);
        EXPECT_EQ(nodes.text(nodes.at(valueToken)), value);
        EXPECT_EQ(nodes.string(nodes.at(keyToken))->len, key.size());
        EXPECT_EQ(nodes.strings(), strings); // no string of the runtime
    }
}

TEST(NodeTexts, areThoseOfTheRuntimeForAllNodes)
{
    const test::StderrCapture quiet;
    for (const std::string text :
         {"a = 1\n", "[t]\n[[u.'v']]\na.b = [1, {c = \"x\"}]\n", "a = []\nb = {}\n@", "a\n", "",
          "a = 1", "a = [1 2\n", "[a\nb = 1\n", "= 1\na = = 1\n"})
    {
        const Nodes nodes(text);
        std::vector<pANTLR3_BASE_TREE> all;
        visitNodes(nodes.at({}), all);
        for (const pANTLR3_BASE_TREE node : all)
        {
            if (node->isNilNode(node) == ANTLR3_TRUE)
            {
                continue;
            }
            EXPECT_EQ(nodes.text(node), nodes.runtimeText(node, node)) << text;
        }
    }
}

TEST(NodeTexts, ofImaginaryNodesAreStringsOfTheRuntime)
{
    const Nodes nodes("a = 1\n");
    for (const auto& [path, text] : std::vector<std::pair<std::vector<ANTLR3_UINT32>, std::string>>{
             {{0}, "KEYVAL"}, {{0, 0}, "KEY_BARE"}, {{0, 1}, "VAL_INTEGER"}, {{2}, "<EOF>"}})
    {
        SCOPED_TRACE(text);
        const ANTLR3_UINT32 strings = nodes.strings();
        const pANTLR3_STRING first = nodes.string(nodes.at(path));
        const pANTLR3_STRING second = nodes.string(nodes.at(path));
        EXPECT_EQ(charactersOf(first), text);
        EXPECT_EQ(charactersOf(second), text);
        EXPECT_NE(first, second);
        EXPECT_GT(nodes.strings(), strings);
    }
}

TEST(NodeTexts, ofSeveralNodesAreStringsOfTheRuntime)
{
    const Nodes nodes("a = [1, 2]\n");
    const std::vector<ANTLR3_UINT32> array = {0, 1};
    for (const auto& [first, last] : {std::pair{nodes.at({0}), nodes.at({0, 1, 1, 0})},
                                      std::pair{nodes.at(array), nodes.at({0, 1, 0, 0})},
                                      std::pair{nodes.at(keyToken), nodes.at(array)}})
    {
        const ANTLR3_UINT32 strings = nodes.strings();
        const std::string text = charactersOf(nodes.string(first, last));
        EXPECT_GT(nodes.strings(), strings);
        EXPECT_EQ(text, nodes.runtimeText(first, last));
    }
    EXPECT_NE(nodes.text(nodes.at({0})),
              charactersOf(nodes.string(nodes.at({0}), nodes.at({0, 1, 1, 0}))));
}

TEST(NodeTexts, areInOneStringOneAfterTheOther)
{
    const std::string longer(1000, 'x');
    const std::string longest(100'000, 'y');
    const std::string key = "key";
    for (const std::string& value : {"'" + longer + "'", "'" + longest + "'", "1"s})
    {
        SCOPED_TRACE(value.substr(0, 3));
        const Nodes nodes(key + " = " + value + "\n");
        const pANTLR3_STRING string = nodes.string(nodes.at(keyToken));
        for (int round = 0; round < 3; ++round)
        {
            EXPECT_EQ(nodes.string(nodes.at(keyToken)), string);
            EXPECT_EQ(charactersOf(string), key);
            EXPECT_EQ(string->len, key.size());
            EXPECT_EQ(nodes.string(nodes.at(valueToken)), string);
            EXPECT_TRUE(charactersOf(string) == value);
            EXPECT_EQ(string->len, value.size());
            EXPECT_GT(string->size, string->len);
        }
    }
}

TEST(NodeTexts, growWithTheTextsOfADocument)
{
    std::string text = "a = [";
    std::vector<std::string> elements;
    for (const std::size_t length : {0, 1, 5, 6, 7, 8, 3, 15, 16, 17, 300, 2, 299, 5000, 4999, 1})
    {
        elements.push_back("'" + std::string(length, 'x') + "'");
        text += (elements.size() > 1 ? ", " : "") + elements.back();
    }
    const Nodes nodes(text + "]\n");
    for (ANTLR3_UINT32 index = 0; index < elements.size(); ++index)
    {
        const pANTLR3_STRING string = nodes.string(nodes.at({0, 1, index, 0}));
        EXPECT_EQ(charactersOf(string), elements[index]);
        EXPECT_GT(string->size, string->len);
    }
}
