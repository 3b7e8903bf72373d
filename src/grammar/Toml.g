// The TOML that this library reads: the tokens and the document rules.
//
// The antlr3 tool makes TomlLexer and TomlParser from this file.  The parser
// turns a document into a flat list of syntax trees (one per key/value pair or
// header, an NL node per line break, the end-of-input node last), which
// TomlTree.g walks.  Imaginary nodes (KEYVAL, VAL_INTEGER, ...) name what a
// tree stands for; punctuation is dropped from the trees.
//
// The order of the rules is part of the interface: it fixes the members of the
// recognisers' contexts, the precedence of tokens that match the same text, and
// the numbers that the tool gives to types and decisions.
grammar Toml;

options {
    language = C;
    output = AST;
    ASTLabelType = pANTLR3_BASE_TREE;
}

tokens {
    KEYVAL;
    HEADER_TABLE;
    HEADER_ARRAY_TABLE;
    KEY_BARE;
    KEY_QUOTED;
    KEY_DOTTED;
    VAL_STRING_BASIC;
    VAL_STRING_ML_BASIC;
    VAL_STRING_LITERAL;
    VAL_STRING_ML_LITERAL;
    VAL_INTEGER;
    VAL_FLOAT;
    VAL_BOOL;
    VAL_OFFSET_DATE_TIME;
    VAL_LOCAL_DATE_TIME;
    VAL_LOCAL_DATE;
    VAL_LOCAL_TIME;
    VAL_ARRAY;
    VAL_INLINE_TABLE;
}

@parser::postinclude {
#include "grammar/construction.h"
}

// The end of the constructor.
@parser::apifuncs {
    if (PARSER == NULL || !isStateMade(PSRSTATE) || !isAdaptorMade(ADAPTOR) ||
        !areVectorsMade(ctx->vectors))
    {
        freeVectors(ctx->vectors);
        freeAdaptor(ADAPTOR);
        freeParser(PARSER, state);
        ANTLR3_FREE(ctx);
        return NULL;
    }
}

// ---------------------------------------------------------------------------
// Document, lines and keys
// ---------------------------------------------------------------------------

document
    : expression (NL expression)* EOF
    ;

// One line.  The lexer discards blanks and comments, so the alternatives that
// name them describe the language but never match a token.
expression
    : ws key_value ws comment
    | ws table ws comment
    | ws comment
    ;

comment
    : COMMENT?
    ;

ws
    : WS?
    ;

key_value
    : key '=' value -> ^(KEYVAL key value)
    ;

key
    : simple_key
    | dotted_key
    ;

simple_key
    : quoted_key -> ^(KEY_QUOTED quoted_key)
    | bare_key -> ^(KEY_BARE bare_key)
    ;

// A text that lexes as a value (true, 123, 1979-05-27) is never a bare key.
bare_key
    : BARE_KEY
    ;

quoted_key
    : BASIC_STRING
    | LITERAL_STRING
    ;

dotted_key
    : simple_key ('.' simple_key)+ -> ^(KEY_DOTTED simple_key+)
    ;

// ---------------------------------------------------------------------------
// Values: a scalar is a VAL_ node over the token as it was matched
// ---------------------------------------------------------------------------

value
    : string
    | integer -> ^(VAL_INTEGER integer)
    | floating_point -> ^(VAL_FLOAT floating_point)
    | bool_ -> ^(VAL_BOOL bool_)
    | date_time
    | array
    | inline_table
    ;

string
    : basic_string -> ^(VAL_STRING_BASIC basic_string)
    | ml_basic_string -> ^(VAL_STRING_ML_BASIC ml_basic_string)
    | literal_string -> ^(VAL_STRING_LITERAL literal_string)
    | ml_literal_string -> ^(VAL_STRING_ML_LITERAL ml_literal_string)
    ;

basic_string
    : BASIC_STRING
    ;

ml_basic_string
    : ML_BASIC_STRING
    ;

literal_string
    : LITERAL_STRING
    ;

ml_literal_string
    : ML_LITERAL_STRING
    ;

integer
    : BIN_INT
    | DEC_INT
    | HEX_INT
    | OCT_INT
    ;

floating_point
    : FLOAT
    | INF
    | NAN
    ;

bool_
    : BOOLEAN
    ;

date_time
    : offset_date_time -> ^(VAL_OFFSET_DATE_TIME offset_date_time)
    | local_date_time -> ^(VAL_LOCAL_DATE_TIME local_date_time)
    | local_date -> ^(VAL_LOCAL_DATE local_date)
    | local_time -> ^(VAL_LOCAL_TIME local_time)
    ;

offset_date_time
    : OFFSET_DATE_TIME
    ;

local_date_time
    : LOCAL_DATE_TIME
    ;

local_date
    : LOCAL_DATE
    ;

local_time
    : LOCAL_TIME
    ;

// At least one element.  At most one NL in each of the places below, so a
// comment line does not fit, and a line break before ']' needs two elements
// and no trailing comma.  The tool warns that the optional breaks around an
// element overlap; taking them at the first chance is what is meant.
array
    : '[' ws_comment_newline? value
      (ws_comment_newline? ',' ws_comment_newline? value ws_comment_newline?)*
      ','? ']' -> ^(VAL_ARRAY value*)
    ;

ws_comment_newline
    : NL
    | WS
    | COMMENT NL
    ;

table
    : standard_table
    | array_table
    ;

standard_table
    : '[' key ']' -> ^(HEADER_TABLE key)
    ;

// At least one pair, all on one line, no trailing comma.
inline_table
    : '{' key_value (',' key_value)* '}' -> ^(VAL_INLINE_TABLE key_value*)
    ;

array_table
    : '[' '[' key ']' ']' -> ^(HEADER_ARRAY_TABLE key)
    ;

// ---------------------------------------------------------------------------
// Blanks, line breaks, comments
// ---------------------------------------------------------------------------

WS
    : (' ' | '\t')+ { SKIP(); }
    ;

// A run of line breaks with nothing between them is one token.
NL
    : ('\r'? '\n')+
    ;

COMMENT
    : '#' ~'\n'* { SKIP(); }
    ;

BOOLEAN
    : 'true'
    | 'false'
    ;

// ---------------------------------------------------------------------------
// Strings
// ---------------------------------------------------------------------------

BASIC_STRING
    : '"' (ESC | ~('\n' | '"' | '\\'))* '"'
    ;

// One or two quotes may stand anywhere in the content, but only one right
// before the closing delimiter.
ML_BASIC_STRING
    : '"""' (('"' '"'?)? (ML_ESC | ~('"' | '\\')))* '"'? '"""'
    ;

LITERAL_STRING
    : '\'' ~('\n' | '\'')* '\''
    ;

ML_LITERAL_STRING
    : '\'\'\'' (('\'' '\''?)? ~'\'')* '\''? '\'\'\''
    ;

// ---------------------------------------------------------------------------
// Numbers
// ---------------------------------------------------------------------------

fragment EXP
    : ('e' | 'E') ('+' | '-')? ZERO_PREFIXABLE_INT
    ;

fragment ZERO_PREFIXABLE_INT
    : DIGIT (DIGIT | '_' DIGIT)*
    ;

fragment FRAC
    : '.' ZERO_PREFIXABLE_INT
    ;

FLOAT
    : DEC_INT (EXP | FRAC EXP?)
    ;

INF
    : ('+' | '-')? 'inf'
    ;

NAN
    : ('+' | '-')? 'nan'
    ;

fragment HEX_DIGIT
    : '0'..'9' | 'A'..'F' | 'a'..'f'
    ;

fragment DIGIT
    : '0'..'9'
    ;

fragment DIGIT_1_9
    : '1'..'9'
    ;

fragment DIGIT_0_7
    : '0'..'7'
    ;

fragment DIGIT_0_1
    : '0' | '1'
    ;

// A leading zero never starts a longer integer.
DEC_INT
    : ('+' | '-')? (DIGIT_1_9 (DIGIT | '_' DIGIT)+ | DIGIT)
    ;

HEX_INT
    : '0x' HEX_DIGIT (HEX_DIGIT | '_' HEX_DIGIT)*
    ;

OCT_INT
    : '0o' DIGIT_0_7 (DIGIT_0_7 | '_' DIGIT_0_7)*
    ;

BIN_INT
    : '0b' DIGIT_0_1 (DIGIT_0_1 | '_' DIGIT_0_1)*
    ;

// ---------------------------------------------------------------------------
// Dates and times: the shape only, no ranges
// ---------------------------------------------------------------------------

fragment YEAR
    : DIGIT DIGIT DIGIT DIGIT
    ;

fragment MONTH
    : DIGIT DIGIT
    ;

fragment DAY
    : DIGIT DIGIT
    ;

fragment DELIM
    : ' ' | 'T' | 't'
    ;

fragment HOUR
    : DIGIT DIGIT
    ;

fragment MINUTE
    : DIGIT DIGIT
    ;

fragment SECOND
    : DIGIT DIGIT
    ;

fragment SECFRAC
    : '.' DIGIT+
    ;

fragment NUMOFFSET
    : ('+' | '-') HOUR ':' MINUTE
    ;

fragment OFFSET
    : 'Z'
    | NUMOFFSET
    ;

fragment PARTIAL_TIME
    : HOUR ':' MINUTE ':' SECOND SECFRAC?
    ;

fragment FULL_DATE
    : YEAR '-' MONTH '-' DAY
    ;

fragment FULL_TIME
    : PARTIAL_TIME OFFSET
    ;

OFFSET_DATE_TIME
    : FULL_DATE DELIM PARTIAL_TIME OFFSET
    ;

LOCAL_DATE_TIME
    : FULL_DATE DELIM PARTIAL_TIME
    ;

LOCAL_DATE
    : FULL_DATE
    ;

LOCAL_TIME
    : PARTIAL_TIME
    ;

// ---------------------------------------------------------------------------
// Keys and escapes
// ---------------------------------------------------------------------------

// The last token rule: every value token beats it on equal text.
BARE_KEY
    : (ALPHA | DIGIT | '_' | '-')+
    ;

fragment ALPHA
    : 'A'..'Z' | 'a'..'z'
    ;

// A backslash before a line break takes exactly that one line break.
fragment ML_ESC
    : '\\' '\r'? '\n'
    | ESC
    ;

fragment UNICODE
    : HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT
    ;

fragment EX_UNICODE
    : HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT HEX_DIGIT
    ;

// Only the form is checked: any four or eight hexadecimal digits will do.
fragment ESC
    : '\\' ( '"' | '\'' | '\\' | 'b' | 'f' | 'n' | 'r' | 't' | 'u' UNICODE | 'U' EX_UNICODE )
    ;
