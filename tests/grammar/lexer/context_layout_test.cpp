// The order of the members of the recognisers' contexts.
#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "pipeline/recognisers.h"

namespace
{

struct Member
{
    std::string name;
    std::size_t offset;
};

// Every member is a pointer, and one follows the other without a gap.
void expectOrder(const std::vector<Member>& members, std::size_t size)
{
    for (std::size_t index = 0; index < members.size(); ++index)
    {
        EXPECT_EQ(members[index].offset, index * sizeof(void*)) << members[index].name;
    }
    EXPECT_EQ(size, members.size() * sizeof(void*));
}

#define LEXER(member)                                                                              \
    {                                                                                              \
#member, offsetof(TomlLexer, member)                                                       \
    }
#define PARSER(member)                                                                             \
    {                                                                                              \
#member, offsetof(TomlParser, member)                                                      \
    }
#define TREE(member)                                                                               \
    {                                                                                              \
#member, offsetof(TomlTree, member)                                                        \
    }

} // namespace

TEST(ContextLayout, ofTheLexer)
{
    const std::vector<Member> before = {
        LEXER(pLexer),
        LEXER(mT__69),
        LEXER(mT__70),
        LEXER(mT__71),
        LEXER(mT__72),
        LEXER(mT__73),
        LEXER(mT__74),
        LEXER(mT__75),
        LEXER(mWS),
        LEXER(mNL),
        LEXER(mCOMMENT),
        LEXER(mBOOLEAN),
        LEXER(mBASIC_STRING),
        LEXER(mML_BASIC_STRING),
        LEXER(mLITERAL_STRING),
        LEXER(mML_LITERAL_STRING),
        LEXER(mEXP),
        LEXER(mZERO_PREFIXABLE_INT),
        LEXER(mFRAC),
        LEXER(mFLOAT),
        LEXER(mINF),
        LEXER(mNAN),
        LEXER(mHEX_DIGIT),
        LEXER(mDIGIT),
        LEXER(mDIGIT_1_9),
        LEXER(mDIGIT_0_7),
        LEXER(mDIGIT_0_1),
        LEXER(mDEC_INT),
        LEXER(mHEX_INT),
        LEXER(mOCT_INT),
        LEXER(mBIN_INT),
    };
    // The order among the fragments of dates and times is free.
    const std::vector<Member> fragments = {
        LEXER(mYEAR),      LEXER(mMONTH),  LEXER(mDAY),          LEXER(mDELIM),
        LEXER(mHOUR),      LEXER(mMINUTE), LEXER(mSECOND),       LEXER(mSECFRAC),
        LEXER(mNUMOFFSET), LEXER(mOFFSET), LEXER(mPARTIAL_TIME), LEXER(mFULL_DATE),
        LEXER(mFULL_TIME),
    };
    const std::vector<Member> after = {
        LEXER(mOFFSET_DATE_TIME),
        LEXER(mLOCAL_DATE_TIME),
        LEXER(mLOCAL_DATE),
        LEXER(mLOCAL_TIME),
        LEXER(mBARE_KEY),
        LEXER(mALPHA),
        LEXER(mML_ESC),
        LEXER(mUNICODE),
        LEXER(mEX_UNICODE),
        LEXER(mESC),
        LEXER(mTokens),
        LEXER(getGrammarFileName),
        LEXER(reset),
        LEXER(free),
    };
    std::set<std::size_t> offsets;
    for (const Member& fragment : fragments)
    {
        offsets.insert(fragment.offset);
    }
    ASSERT_EQ(offsets.size(), 13u);
    std::vector<Member> members = before;
    for (const std::size_t offset : offsets)
    {
        members.push_back({"a fragment of dates and times", offset});
    }
    members.insert(members.end(), after.begin(), after.end());
    expectOrder(members, sizeof(TomlLexer));
}

TEST(ContextLayout, ofTheParser)
{
    expectOrder(
        {
            PARSER(pParser),
            PARSER(document),
            PARSER(expression),
            PARSER(comment),
            PARSER(ws),
            PARSER(key_value),
            PARSER(key),
            PARSER(simple_key),
            PARSER(bare_key),
            PARSER(quoted_key),
            PARSER(dotted_key),
            PARSER(value),
            PARSER(string),
            PARSER(basic_string),
            PARSER(ml_basic_string),
            PARSER(literal_string),
            PARSER(ml_literal_string),
            PARSER(integer),
            PARSER(floating_point),
            PARSER(bool_),
            PARSER(date_time),
            PARSER(offset_date_time),
            PARSER(local_date_time),
            PARSER(local_date),
            PARSER(local_time),
            PARSER(array),
            PARSER(ws_comment_newline),
            PARSER(table),
            PARSER(standard_table),
            PARSER(inline_table),
            PARSER(array_table),
            PARSER(getGrammarFileName),
            PARSER(reset),
            PARSER(free),
            PARSER(adaptor),
            PARSER(vectors),
        },
        sizeof(TomlParser));
}

TEST(ContextLayout, ofTheTreeParser)
{
    expectOrder(
        {
            TREE(pTreeParser),
            TREE(document),
            TREE(expression),
            TREE(whitespace),
            TREE(key_value),
            TREE(table_header),
            TREE(array_table_header),
            TREE(key),
            TREE(simple_key),
            TREE(bare_key),
            TREE(quoted_key),
            TREE(dotted_key),
            TREE(dotted_key_parts),
            TREE(value),
            TREE(string_value),
            TREE(date_time_value),
            TREE(array),
            TREE(array_elements),
            TREE(inline_table),
            TREE(inline_table_body),
            TREE(bare_key_text),
            TREE(quoted_key_text),
            TREE(integer_text),
            TREE(float_text),
            TREE(boolean_text),
            TREE(basic_string_text),
            TREE(ml_basic_string_text),
            TREE(literal_string_text),
            TREE(ml_literal_string_text),
            TREE(offset_date_time_text),
            TREE(local_date_time_text),
            TREE(local_date_text),
            TREE(local_time_text),
            TREE(getGrammarFileName),
            TREE(reset),
            TREE(free),
        },
        sizeof(TomlTree));
}
