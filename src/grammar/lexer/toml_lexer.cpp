#include "toml_lexer.h"

#include "matching.h"
#include "prediction.h"
#include "rules.h"
#include "whole_token.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr ANTLR3_UINT32 sizeHint = 1025;

template <rules::Rule rule>
void entry(pTomlLexer context)
{
    rule(context->pLexer);
}

void matchToken(pTomlLexer context)
{
    const pANTLR3_LEXER lexer = context->pLexer;
    const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexer->rec->state;
    if (!isWell(lexer) || state.failed == ANTLR3_TRUE || takeWholeToken(lexer))
    {
        return;
    }
    const rules::Rule rule = predictToken(lexer);
    if (rule != nullptr)
    {
        rule(lexer);
    }
}

const char* grammarFileName()
{
    return "src/grammar/Toml.g";
}

void reset(pTomlLexer context)
{
    context->pLexer->rec->reset(context->pLexer->rec);
}

void release(pTomlLexer context)
{
    context->pLexer->free(context->pLexer);
    ANTLR3_FREE(context);
}

void installTokenRules(TomlLexer& context)
{
    context.mT__69 = entry<rules::comma>;
    context.mT__70 = entry<rules::dot>;
    context.mT__71 = entry<rules::equals>;
    context.mT__72 = entry<rules::openBracket>;
    context.mT__73 = entry<rules::closeBracket>;
    context.mT__74 = entry<rules::openBrace>;
    context.mT__75 = entry<rules::closeBrace>;
    context.mWS = entry<rules::blanks>;
    context.mNL = entry<rules::newline>;
    context.mCOMMENT = entry<rules::comment>;
    context.mBOOLEAN = entry<rules::boolean>;
    context.mBASIC_STRING = entry<rules::basicString>;
    context.mML_BASIC_STRING = entry<rules::mlBasicString>;
    context.mLITERAL_STRING = entry<rules::literalString>;
    context.mML_LITERAL_STRING = entry<rules::mlLiteralString>;
    context.mFLOAT = entry<rules::floating>;
    context.mINF = entry<rules::inf>;
    context.mNAN = entry<rules::nan>;
    context.mDEC_INT = entry<rules::decInt>;
    context.mHEX_INT = entry<rules::hexInt>;
    context.mOCT_INT = entry<rules::octInt>;
    context.mBIN_INT = entry<rules::binInt>;
    context.mOFFSET_DATE_TIME = entry<rules::offsetDateTime>;
    context.mLOCAL_DATE_TIME = entry<rules::localDateTime>;
    context.mLOCAL_DATE = entry<rules::localDate>;
    context.mLOCAL_TIME = entry<rules::localTime>;
    context.mBARE_KEY = entry<rules::bareKey>;
    context.mTokens = matchToken;
}

void installFragments(TomlLexer& context)
{
    context.mEXP = entry<rules::exponent>;
    context.mZERO_PREFIXABLE_INT = entry<rules::zeroPrefixableInt>;
    context.mFRAC = entry<rules::fraction>;
    context.mHEX_DIGIT = entry<rules::hexadecimalDigit>;
    context.mDIGIT = entry<rules::anyDigit>;
    context.mDIGIT_1_9 = entry<rules::digitFrom1>;
    context.mDIGIT_0_7 = entry<rules::digitTo7>;
    context.mDIGIT_0_1 = entry<rules::digitTo1>;
    context.mYEAR = entry<rules::fourDigits>;
    context.mMONTH = entry<rules::twoDigits>;
    context.mDAY = entry<rules::twoDigits>;
    context.mDELIM = entry<rules::dateTimeDelimiter>;
    context.mHOUR = entry<rules::twoDigits>;
    context.mMINUTE = entry<rules::twoDigits>;
    context.mSECOND = entry<rules::twoDigits>;
    context.mSECFRAC = entry<rules::secondFraction>;
    context.mNUMOFFSET = entry<rules::numericOffset>;
    context.mOFFSET = entry<rules::offset>;
    context.mPARTIAL_TIME = entry<rules::partialTime>;
    context.mFULL_DATE = entry<rules::fullDate>;
    context.mFULL_TIME = entry<rules::fullTime>;
    context.mALPHA = entry<rules::letter>;
    context.mML_ESC = entry<rules::mlEscape>;
    context.mUNICODE = entry<rules::fourHexDigits>;
    context.mEX_UNICODE = entry<rules::eightHexDigits>;
    context.mESC = entry<rules::escape>;
}

pTomlLexer makeLexer(pANTLR3_INPUT_STREAM input, pANTLR3_RECOGNIZER_SHARED_STATE state)
{
    auto* const context = static_cast<pTomlLexer>(ANTLR3_CALLOC(1, sizeof(TomlLexer)));
    if (context == nullptr)
    {
        return nullptr;
    }
    context->pLexer = antlr3LexerNewStream(sizeHint, input, state);
    if (context->pLexer == nullptr)
    {
        ANTLR3_FREE(context);
        return nullptr;
    }
    installTokenRules(*context);
    installFragments(*context);
    context->pLexer->ctx = context;
    // The runtime's convention: it hands over the context as it was stored.
    context->pLexer->mTokens = reinterpret_cast<void (*)(void*)>(context->mTokens);
    context->getGrammarFileName = grammarFileName;
    context->reset = reset;
    context->free = release;
    return context;
}

} // namespace
} // namespace vorn::parsers::toml

pTomlLexer TomlLexerNew(pANTLR3_INPUT_STREAM input)
{
    return TomlLexerNewSSD(input, nullptr);
}

pTomlLexer TomlLexerNewSSD(pANTLR3_INPUT_STREAM input, pANTLR3_RECOGNIZER_SHARED_STATE state)
{
    return vorn::parsers::toml::makeLexer(input, state);
}
