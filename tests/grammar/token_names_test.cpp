// The numbering of token and node types and the tables of their names.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

#include "support/generated_file.h"
#include "support/stderr_capture.h"

#include "support/parser_pipeline.h"

using namespace test;

namespace
{

struct Type
{
    int number;
    int constant; // of the recognisers' headers
    std::string name;
};

#define TYPE(number, name)                                                                         \
    {                                                                                              \
        number, name, #name                                                                        \
    }

const std::vector<Type> grammarTypes = {
    TYPE(4, ALPHA),
    TYPE(5, BARE_KEY),
    TYPE(6, BASIC_STRING),
    TYPE(7, BIN_INT),
    TYPE(8, BOOLEAN),
    TYPE(9, COMMENT),
    TYPE(10, DAY),
    TYPE(11, DEC_INT),
    TYPE(12, DELIM),
    TYPE(13, DIGIT),
    TYPE(14, DIGIT_0_1),
    TYPE(15, DIGIT_0_7),
    TYPE(16, DIGIT_1_9),
    TYPE(17, ESC),
    TYPE(18, EXP),
    TYPE(19, EX_UNICODE),
    TYPE(20, FLOAT),
    TYPE(21, FRAC),
    TYPE(22, FULL_DATE),
    TYPE(23, FULL_TIME),
    TYPE(24, HEADER_ARRAY_TABLE),
    TYPE(25, HEADER_TABLE),
    TYPE(26, HEX_DIGIT),
    TYPE(27, HEX_INT),
    TYPE(28, HOUR),
    TYPE(29, INF),
    TYPE(30, KEYVAL),
    TYPE(31, KEY_BARE),
    TYPE(32, KEY_DOTTED),
    TYPE(33, KEY_QUOTED),
    TYPE(34, LITERAL_STRING),
    TYPE(35, LOCAL_DATE),
    TYPE(36, LOCAL_DATE_TIME),
    TYPE(37, LOCAL_TIME),
    TYPE(38, MINUTE),
    TYPE(39, ML_BASIC_STRING),
    TYPE(40, ML_ESC),
    TYPE(41, ML_LITERAL_STRING),
    TYPE(42, MONTH),
    TYPE(43, NAN),
    TYPE(44, NL),
    TYPE(45, NUMOFFSET),
    TYPE(46, OCT_INT),
    TYPE(47, OFFSET),
    TYPE(48, OFFSET_DATE_TIME),
    TYPE(49, PARTIAL_TIME),
    TYPE(50, SECFRAC),
    TYPE(51, SECOND),
    TYPE(52, UNICODE),
    TYPE(53, VAL_ARRAY),
    TYPE(54, VAL_BOOL),
    TYPE(55, VAL_FLOAT),
    TYPE(56, VAL_INLINE_TABLE),
    TYPE(57, VAL_INTEGER),
    TYPE(58, VAL_LOCAL_DATE),
    TYPE(59, VAL_LOCAL_DATE_TIME),
    TYPE(60, VAL_LOCAL_TIME),
    TYPE(61, VAL_OFFSET_DATE_TIME),
    TYPE(62, VAL_STRING_BASIC),
    TYPE(63, VAL_STRING_LITERAL),
    TYPE(64, VAL_STRING_ML_BASIC),
    TYPE(65, VAL_STRING_ML_LITERAL),
    TYPE(66, WS),
    TYPE(67, YEAR),
    TYPE(68, ZERO_PREFIXABLE_INT),
};

// Their constants are named after their lexer rules.
const std::vector<Type> punctuationTypes = {
    {69, T__69, "','"}, {70, T__70, "'.'"}, {71, T__71, "'='"}, {72, T__72, "'['"},
    {73, T__73, "']'"}, {74, T__74, "'{'"}, {75, T__75, "'}'"},
};

std::vector<std::string> allNames()
{
    std::vector<std::string> names = {"<invalid>", "<EOR>", "<DOWN>", "<UP>"};
    for (const std::vector<Type>& types : {grammarTypes, punctuationTypes})
    {
        for (const Type& type : types)
        {
            names.push_back(type.name);
        }
    }
    return names;
}

using Numbers = std::map<std::string, int>;

// The names of `text` and their numbers: the first and the second group of the pattern.
Numbers numbersIn(const std::string& text, const std::string& pattern)
{
    Numbers numbers;
    const std::regex line(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), line), end; match != end; ++match)
    {
        EXPECT_TRUE(numbers.emplace((*match)[1], std::stoi((*match)[2])).second) << (*match)[1];
    }
    return numbers;
}

// The numbers of the constants' names.
Numbers constantNumbers()
{
    Numbers numbers;
    for (const Type& type : grammarTypes)
    {
        numbers[type.name] = type.number;
    }
    for (const Type& type : punctuationTypes)
    {
        numbers["T__" + std::to_string(type.number)] = type.number;
    }
    return numbers;
}

// What the parser's own display prints for a document.
std::string printedFor(const std::string& text)
{
    const ParserPipeline pipeline(text);
    const StderrCapture capture;
    pipeline.parser()->document(pipeline.parser());
    return capture.text();
}

} // namespace

TEST(TokenNames, areInBothTables)
{
    const std::vector<std::string> names = allNames();
    ASSERT_EQ(names.size(), 76u);
    ASSERT_EQ(std::size(TomlParserTokenNames), names.size());
    ASSERT_EQ(std::size(TomlTreeTokenNames), names.size());
    for (std::size_t type = 0; type < names.size(); ++type)
    {
        SCOPED_TRACE(type);
        EXPECT_EQ(reinterpret_cast<const char*>(TomlParserTokenNames[type]), names[type]);
        EXPECT_EQ(reinterpret_cast<const char*>(TomlTreeTokenNames[type]), names[type]);
    }
}

TEST(TokenNumbers, areThoseOfTheConstants)
{
    for (const std::vector<Type>& types : {grammarTypes, punctuationTypes})
    {
        for (const Type& type : types)
        {
            EXPECT_EQ(type.constant, type.number) << type.name;
        }
    }
    EXPECT_EQ(EOF, -1);
    EXPECT_EQ(ANTLR3_TOKEN_INVALID, 0);
    EXPECT_EQ(ANTLR3_EOR_TOKEN_TYPE, 1);
    EXPECT_EQ(ANTLR3_TOKEN_DOWN, 2);
    EXPECT_EQ(ANTLR3_TOKEN_UP, 3);
}

TEST(TokenNumbers, areSharedByTheRecognisers)
{
    Numbers expected = constantNumbers();
    expected["EOF"] = -1;
    for (const char* const header : {"TomlLexer.h", "TomlParser.h", "TomlTree.h"})
    {
        SCOPED_TRACE(header);
        EXPECT_EQ(numbersIn(generatedFile(header), "\n#define (\\w+) +(-?[0-9]+)(?=\r?\n)"),
                  expected);
    }
}

TEST(TokenNumbers, areThoseOfTheVocabularies)
{
    Numbers expected = constantNumbers();
    for (const Type& type : punctuationTypes)
    {
        expected[type.name] = type.number;
    }
    for (const char* const vocabulary : {"Toml.tokens", "TomlTree.tokens"})
    {
        SCOPED_TRACE(vocabulary);
        EXPECT_EQ(numbersIn(generatedFile(vocabulary), "(\\w+|'[^']*')=([0-9]+)\n"), expected);
    }
}

TEST(TokenNames, areInTheMessagesOfTheRuntime)
{
    struct Message
    {
        const char* text;
        const char* part;
    };
    // The end of the input has no name in the tables; the runtime has one for it.
    for (const Message& message : {
             Message{"[[a]", "Missing ']' "},
             Message{"a = 1 b", "expected <EOF>"},
             Message{"a =", "at <EOF>"},
         })
    {
        const std::string printed = printedFor(message.text);
        EXPECT_NE(printed.find(message.part), std::string::npos) << printed;
    }
}
