// The lexer of Toml.g, written by hand.
//
// It is used like a lexer that the antlr3 tool makes, and does the same to the runtime's
// objects: the same tokens, errors and recovery from them.
#pragma once

#include <antlr3.h>

extern "C"
{
    struct TomlLexer_Ctx_struct;
    using TomlLexer = TomlLexer_Ctx_struct;
    using pTomlLexer = TomlLexer*;
    using TomlLexerRule = void (*)(pTomlLexer);

    // The order of the members is part of the binary interface.
    struct TomlLexer_Ctx_struct
    {
        pANTLR3_LEXER pLexer;

        // Each matches its rule at the input's position.
        // NOLINTBEGIN(*-reserved-identifier,cert-dcl*): the tool's names.
        TomlLexerRule mT__69;
        TomlLexerRule mT__70;
        TomlLexerRule mT__71;
        TomlLexerRule mT__72;
        TomlLexerRule mT__73;
        TomlLexerRule mT__74;
        TomlLexerRule mT__75;
        // NOLINTEND(*-reserved-identifier,cert-dcl*)
        TomlLexerRule mWS;
        TomlLexerRule mNL;
        TomlLexerRule mCOMMENT;
        TomlLexerRule mBOOLEAN;
        TomlLexerRule mBASIC_STRING;
        TomlLexerRule mML_BASIC_STRING;
        TomlLexerRule mLITERAL_STRING;
        TomlLexerRule mML_LITERAL_STRING;
        TomlLexerRule mEXP;
        TomlLexerRule mZERO_PREFIXABLE_INT;
        TomlLexerRule mFRAC;
        TomlLexerRule mFLOAT;
        TomlLexerRule mINF;
        TomlLexerRule mNAN;
        TomlLexerRule mHEX_DIGIT;
        TomlLexerRule mDIGIT;
        TomlLexerRule mDIGIT_1_9;
        TomlLexerRule mDIGIT_0_7;
        TomlLexerRule mDIGIT_0_1;
        TomlLexerRule mDEC_INT;
        TomlLexerRule mHEX_INT;
        TomlLexerRule mOCT_INT;
        TomlLexerRule mBIN_INT;
        TomlLexerRule mYEAR;
        TomlLexerRule mMONTH;
        TomlLexerRule mDAY;
        TomlLexerRule mDELIM;
        TomlLexerRule mHOUR;
        TomlLexerRule mMINUTE;
        TomlLexerRule mSECOND;
        TomlLexerRule mSECFRAC;
        TomlLexerRule mNUMOFFSET;
        TomlLexerRule mOFFSET;
        TomlLexerRule mPARTIAL_TIME;
        TomlLexerRule mFULL_DATE;
        TomlLexerRule mFULL_TIME;
        TomlLexerRule mOFFSET_DATE_TIME;
        TomlLexerRule mLOCAL_DATE_TIME;
        TomlLexerRule mLOCAL_DATE;
        TomlLexerRule mLOCAL_TIME;
        TomlLexerRule mBARE_KEY;
        TomlLexerRule mALPHA;
        TomlLexerRule mML_ESC;
        TomlLexerRule mUNICODE;
        TomlLexerRule mEX_UNICODE;
        TomlLexerRule mESC;

        // Chooses the token rule that fits and matches it; the runtime calls it for each token.
        TomlLexerRule mTokens;

        const char* (*getGrammarFileName)();
        void (*reset)(pTomlLexer);
        void (*free)(pTomlLexer);
    };

    // A lexer over the input, with the given recogniser state if there is one (SSD); null
    // when memory runs out.  It is released through its own `free` member.
    __attribute__((visibility("default"))) pTomlLexer TomlLexerNew(pANTLR3_INPUT_STREAM input);
    __attribute__((visibility("default"))) pTomlLexer
    TomlLexerNewSSD(pANTLR3_INPUT_STREAM input, pANTLR3_RECOGNIZER_SHARED_STATE state);
}
