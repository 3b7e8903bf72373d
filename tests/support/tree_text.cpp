#include "tree_text.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "pipeline/recognisers.h"

namespace test
{
namespace
{

constexpr std::pair<char, char> escapes[] = {
    {'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};

const char* nameOf(ANTLR3_UINT32 type)
{
    if (type == ANTLR3_TOKEN_EOF)
    {
        return "EOF";
    }
    return reinterpret_cast<const char*>(TomlTreeTokenNames[type]);
}

ANTLR3_UINT32 typeOf(const std::string& name)
{
    const auto found = std::find_if(std::begin(TomlTreeTokenNames), std::end(TomlTreeTokenNames),
                                    [&name](pANTLR3_UINT8 entry)
                                    { return name == reinterpret_cast<const char*>(entry); });
    if (found != std::end(TomlTreeTokenNames))
    {
        return static_cast<ANTLR3_UINT32>(found - std::begin(TomlTreeTokenNames));
    }
    if (name == nameOf(ANTLR3_TOKEN_EOF))
    {
        return ANTLR3_TOKEN_EOF;
    }
    throw std::invalid_argument("no such node type: " + name);
}

bool isImaginary(ANTLR3_UINT32 type)
{
    return type == HEADER_ARRAY_TABLE || type == HEADER_TABLE ||
           (type >= KEYVAL && type <= KEY_QUOTED) ||
           (type >= VAL_ARRAY && type <= VAL_STRING_ML_LITERAL);
}

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char character : text)
    {
        const auto escape =
            std::find_if(std::begin(escapes), std::end(escapes),
                         [character](const auto& entry) { return entry.first == character; });
        if (escape != std::end(escapes))
        {
            result += '\\';
            result += escape->second;
        }
        else
        {
            result += character;
        }
    }
    return result + '"';
}

std::string nodeText(pANTLR3_BASE_TREE node)
{
    const ANTLR3_UINT32 type = node->getType(node);
    const std::string name = nameOf(type);
    const pANTLR3_STRING text = node->getText(node);
    if (text == nullptr)
    {
        return name;
    }
    const std::string characters(reinterpret_cast<const char*>(text->chars), text->len);
    if (type == ANTLR3_TOKEN_EOF || (isImaginary(type) && characters == name))
    {
        return name;
    }
    return name + ' ' + quoted(characters);
}

} // namespace

std::string treeText(pANTLR3_BASE_TREE tree)
{
    if (tree == nullptr)
    {
        return {};
    }
    const bool isList = tree->isNilNode(tree) == ANTLR3_TRUE;
    std::string children;
    for (ANTLR3_UINT32 index = 0; index < tree->getChildCount(tree); ++index)
    {
        children += index == 0 ? "" : isList ? " " : ", ";
        children += treeText(static_cast<pANTLR3_BASE_TREE>(tree->getChild(tree, index)));
    }
    if (isList)
    {
        return children;
    }
    return nodeText(tree) + (children.empty() ? "" : '(' + children + ')');
}

// Reads the notation from left to right.
class TreeBuilder::Reader
{
public:
    Reader(TreeBuilder& builder, const std::string& text)
        : adaptor_(builder.adaptor_), texts_(builder.texts_), text_(text)
    {
    }

    pANTLR3_BASE_TREE list()
    {
        const auto root = static_cast<pANTLR3_BASE_TREE>(adaptor_->nilNode(adaptor_));
        for (skipBlanks(); position_ < text_.size(); skipBlanks())
        {
            adaptor_->addChild(adaptor_, root, tree());
        }
        return root;
    }

private:
    pANTLR3_BASE_TREE tree()
    {
        const pANTLR3_BASE_TREE root = node();
        if (!take('('))
        {
            return root;
        }
        if (take(')'))
        {
            root->setChild(root, 0, adaptor_->nilNode(adaptor_));
            return root;
        }
        do
        {
            skipBlanks();
            adaptor_->addChild(adaptor_, root, tree());
        } while (take(','));
        expect(')');
        return root;
    }

    pANTLR3_BASE_TREE node()
    {
        const std::size_t start = position_;
        position_ = std::min(text_.find_first_of(" (),", start), text_.size());
        const std::string name = text_.substr(start, position_ - start);
        const ANTLR3_UINT32 type = typeOf(name);
        if (position_ + 1 < text_.size() && text_[position_] == ' ' && text_[position_ + 1] == '"')
        {
            ++position_;
            return node(type, nodeText());
        }
        return isImaginary(type) ? node(type, name) : nodeWithoutText(type);
    }

    pANTLR3_BASE_TREE node(ANTLR3_UINT32 type, const std::string& text)
    {
        std::string& kept = texts_.emplace_back(text);
        return static_cast<pANTLR3_BASE_TREE>(
            adaptor_->createTypeText(adaptor_, type, reinterpret_cast<pANTLR3_UINT8>(kept.data())));
    }

    pANTLR3_BASE_TREE nodeWithoutText(ANTLR3_UINT32 type)
    {
        const pANTLR3_BASE_TREE made = node(type, "");
        made->getToken(made)->textState = ANTLR3_TEXT_NONE;
        return made;
    }

    std::string nodeText()
    {
        expect('"');
        std::string result;
        while (!take('"'))
        {
            if (!take('\\'))
            {
                result += text_.at(position_++);
                continue;
            }
            const char letter = text_.at(position_++);
            const auto escape =
                std::find_if(std::begin(escapes), std::end(escapes),
                             [letter](const auto& entry) { return entry.second == letter; });
            if (escape == std::end(escapes))
            {
                throw std::invalid_argument("no such escape in " + text_);
            }
            result += escape->first;
        }
        return result;
    }

    void skipBlanks()
    {
        position_ = std::min(text_.find_first_not_of(' ', position_), text_.size());
    }

    bool take(char character)
    {
        const bool found = position_ < text_.size() && text_[position_] == character;
        position_ += found ? 1 : 0;
        return found;
    }

    void expect(char character)
    {
        if (!take(character))
        {
            throw std::invalid_argument(std::string("no ") + character + " where one is due in " +
                                        text_);
        }
    }

    pANTLR3_BASE_TREE_ADAPTOR adaptor_;
    std::deque<std::string>& texts_;
    const std::string& text_;
    std::size_t position_ = 0;
};

TreeBuilder::TreeBuilder()
    : strings_(antlr3StringFactoryNew(ANTLR3_ENC_UTF8)), adaptor_(ANTLR3_TREE_ADAPTORNew(strings_))
{
}

TreeBuilder::~TreeBuilder()
{
    adaptor_->free(adaptor_);
    strings_->close(strings_);
}

pANTLR3_BASE_TREE TreeBuilder::build(const std::string& text)
{
    return Reader(*this, text).list();
}

} // namespace test
