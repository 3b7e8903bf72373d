// What is made at random has every kind of token that the tool's lexer knows.
#include <gtest/gtest.h>

#include <antlr3.h>

#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>

#include "differential/document_generator.h"
#include "differential/token_generator.h"
#include "support/generated_file.h"

#include "reference/renamed_recognisers.h"

// A token's name, and one of the C library.
#undef NAN
#include "TomlLexer.h"

namespace
{

constexpr std::size_t rounds = 2000;

struct Free
{
    void operator()(pTomlLexer lexer) const { lexer->free(lexer); }
    void operator()(pANTLR3_INPUT_STREAM input) const { input->close(input); }
};

// The lexer's alternatives, which follow each other in the comment of its dispatch.
std::set<std::string> ruleNames()
{
    const std::string lexer = test::generatedFile("TomlLexer.c");
    const std::regex dispatch("1:1: Tokens : \\(([^;]*)\\);");
    std::smatch found;
    std::set<std::string> names;
    if (std::regex_search(lexer, found, dispatch))
    {
        const std::string alternatives = found[1];
        const std::regex word("\\w+");
        for (std::sregex_iterator name(alternatives.begin(), alternatives.end(), word), end;
             name != end; ++name)
        {
            names.insert(name->str());
        }
    }
    // The lexer discards these.
    names.erase("WS");
    names.erase("COMMENT");
    return names;
}

// The names of the types: of a rule, or the text of a mark.
std::map<int, std::string> typeNames()
{
    const std::string vocabulary = test::generatedFile("Toml.tokens");
    const std::regex line("(\\w+|'[^\n]+')=([0-9]+)\n");
    std::map<int, std::string> names;
    for (std::sregex_iterator type(vocabulary.begin(), vocabulary.end(), line), end; type != end;
         ++type)
    {
        const int number = std::stoi((*type)[2]);
        const std::string name = (*type)[1];
        names[number] = name[0] == '\'' ? "T__" + std::to_string(number) : name;
    }
    return names;
}

// Adds the types of the tokens of a text.
void collectTypes(const std::string& text, std::set<int>& types)
{
    // The runtime takes what it only reads as mutable bytes.
    const auto bytes = reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text.data()));
    const std::unique_ptr<ANTLR3_INPUT_STREAM, Free> input(antlr3StringStreamNew(
        bytes, ANTLR3_ENC_UTF8, static_cast<ANTLR3_UINT32>(text.size()), bytes));
    const std::unique_ptr<TomlLexer, Free> lexer(TomlLexerNew(input.get()));
    lexer->pLexer->rec->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {};
    const pANTLR3_TOKEN_SOURCE source = lexer->pLexer->rec->state->tokSource;
    for (auto* token = source->nextToken(source); token->type != ANTLR3_TOKEN_EOF;
         token = source->nextToken(source))
    {
        types.insert(static_cast<int>(token->type));
    }
}

} // namespace

TEST(GeneratedTokens, areOfAllTypes)
{
    test::Random random(1);
    test::TokenGenerator tokens(random);
    std::set<int> types;
    for (std::size_t round = 0; round < rounds; ++round)
    {
        for (const std::string& token : {tokens.key(), tokens.scalar(), tokens.newlines()})
        {
            collectTypes(token, types);
        }
    }
    // Marks are made where documents are.
    test::DocumentGenerator generator(1);
    std::set<int> typesOfDocuments;
    for (std::size_t round = 0; round < rounds; ++round)
    {
        collectTypes(generator.next(), typesOfDocuments);
    }

    const std::set<std::string> rules = ruleNames();
    ASSERT_GT(rules.size(), 20u);
    for (const auto& [type, name] : typeNames())
    {
        if (rules.count(name) == 1)
        {
            const bool mark = name.rfind("T__", 0) == 0;
            EXPECT_EQ((mark ? typesOfDocuments : types).count(type), 1u)
                << "tests/differential/" << (mark ? "document" : "token")
                << "_generator.cpp makes no " << name;
        }
    }
}
