// The walk over the syntax trees that Toml.g builds: it checks their shape and
// makes the visitor calls, children left to right, in document order.
//
// The runtime's own match comes first: where one node is missing or one is too many it
// reports that, which counts it, and goes on as if the tree were well-formed.  To what it does
// not repair, two kinds of rule react differently:
//  - Structural rules stop.  They set the walk's flag `ok` to false and return with the
//    recogniser's error still set, and so does every rule above them; nothing is
//    reported, and the end calls of the open constructs are not made.
//  - Text rules (those that end in _text) and whitespace report the error, which counts
//    it, recover and go on: the caller hands over the text of the node that the rule
//    began at.
//
// The order of the rules fixes the members of the recogniser's context and the
// numbers of its decisions.
tree grammar TomlTree;

options {
    tokenVocab = Toml;
    language = C;
    ASTLabelType = pANTLR3_BASE_TREE;
}

@header {
#include "grammar/tree_actions.h"
}

@postinclude {
#include "grammar/construction.h"
}

// The end of the constructor.
@apifuncs {
    if (PARSER == NULL || !isStateMade(PSRSTATE) || !isStackMade(instream->nodeStack))
    {
        forgetUnmade(&instream->nodeStack);
        freeTreeParser(PARSER, state);
        ANTLR3_FREE(ctx);
        return NULL;
    }
}

// The reaction of the structural rules.
@rulecatch {
    if (HASEXCEPTION())
    {
        ok = false;
    }
}

document[TomlVisitor& visitor] returns [bool walked]
@init {
    bool ok = true;
    walked = false;
    visitor.beginDocument();
}
    : (expression[visitor, ok]? NL)* EOF { visitor.endDocument(); walked = true; }
    ;

expression[TomlVisitor& visitor, bool& ok]
    : array_table_header[visitor, ok]
    | table_header[visitor, ok]
    | key_value[visitor, ok]
    | whitespace
    ;

whitespace
    : WS+
    ;
    catch [...] { REPORT_AND_RECOVER(); }

key_value[TomlVisitor& visitor, bool& ok]
@init { visitor.beginKeyValue(); }
    : ^(KEYVAL key[visitor, ok] value[visitor, ok]) { visitor.endKeyValue(); }
    ;

table_header[TomlVisitor& visitor, bool& ok]
@init { visitor.beginTable(); }
    : ^(HEADER_TABLE key[visitor, ok]) { visitor.endTable(); }
    ;

array_table_header[TomlVisitor& visitor, bool& ok]
@init { visitor.beginArrayTable(); }
    : ^(HEADER_ARRAY_TABLE key[visitor, ok]) { visitor.endArrayTable(); }
    ;

key[TomlVisitor& visitor, bool& ok]
    : dotted_key[visitor, ok]
    | simple_key[visitor, ok]
    ;

simple_key[TomlVisitor& visitor, bool& ok]
    : bare_key[visitor, ok]
    | quoted_key[visitor, ok]
    ;

bare_key[TomlVisitor& visitor, bool& ok]
    : ^(KEY_BARE bare_key_text)
      { visitor.visitBareKey(characters($bare_key_text.text)); }
    ;

quoted_key[TomlVisitor& visitor, bool& ok]
    : ^(KEY_QUOTED quoted_key_text)
      { visitor.visitQuotedKey(characters($quoted_key_text.text)); }
    ;

dotted_key[TomlVisitor& visitor, bool& ok]
@init { visitor.beginDottedKey(); }
    : ^(KEY_DOTTED dotted_key_parts[visitor, ok]) { visitor.endDottedKey(); }
    ;

dotted_key_parts[TomlVisitor& visitor, bool& ok]
    : simple_key[visitor, ok]+
    ;

value[TomlVisitor& visitor, bool& ok]
    : array[visitor, ok]
    | inline_table[visitor, ok]
    | ^(VAL_INTEGER integer_text)
      { visitor.visitInteger(characters($integer_text.text)); }
    | ^(VAL_FLOAT float_text)
      { visitor.visitFloat(characters($float_text.text)); }
    | ^(VAL_BOOL boolean_text)
      { visitor.visitBoolean(characters($boolean_text.text)); }
    | date_time_value[visitor, ok]
    | string_value[visitor, ok]
    ;

string_value[TomlVisitor& visitor, bool& ok]
    : ^(VAL_STRING_BASIC basic_string_text)
      { visitor.visitBasicString(characters($basic_string_text.text)); }
    | ^(VAL_STRING_ML_BASIC ml_basic_string_text)
      { visitor.visitMultilineBasicString(characters($ml_basic_string_text.text)); }
    | ^(VAL_STRING_LITERAL literal_string_text)
      { visitor.visitLiteralString(characters($literal_string_text.text)); }
    | ^(VAL_STRING_ML_LITERAL ml_literal_string_text)
      { visitor.visitMultilineLiteralString(characters($ml_literal_string_text.text)); }
    ;

date_time_value[TomlVisitor& visitor, bool& ok]
    : ^(VAL_OFFSET_DATE_TIME offset_date_time_text)
      { visitor.visitOffsetDateTime(characters($offset_date_time_text.text)); }
    | ^(VAL_LOCAL_DATE_TIME local_date_time_text)
      { visitor.visitLocalDateTime(characters($local_date_time_text.text)); }
    | ^(VAL_LOCAL_DATE local_date_text)
      { visitor.visitLocalDate(characters($local_date_text.text)); }
    | ^(VAL_LOCAL_TIME local_time_text)
      { visitor.visitLocalTime(characters($local_time_text.text)); }
    ;

array[TomlVisitor& visitor, bool& ok]
@init { visitor.beginArray(); }
    : ^(VAL_ARRAY array_elements[visitor, ok]) { visitor.endArray(); }
    ;

array_elements[TomlVisitor& visitor, bool& ok]
    : value[visitor, ok]*
    ;

inline_table[TomlVisitor& visitor, bool& ok]
@init { visitor.beginInlineTable(); }
    : ^(VAL_INLINE_TABLE inline_table_body[visitor, ok]) { visitor.endInlineTable(); }
    ;

inline_table_body[TomlVisitor& visitor, bool& ok]
    : key_value[visitor, ok]*
    ;

bare_key_text
    : BARE_KEY
    ;
    catch [...] { REPORT_AND_RECOVER(); }

quoted_key_text
    : BASIC_STRING | LITERAL_STRING
    ;
    catch [...] { REPORT_AND_RECOVER(); }

integer_text
    : BIN_INT | DEC_INT | HEX_INT | OCT_INT
    ;
    catch [...] { REPORT_AND_RECOVER(); }

float_text
    : FLOAT | INF | NAN
    ;
    catch [...] { REPORT_AND_RECOVER(); }

boolean_text
    : BOOLEAN
    ;
    catch [...] { REPORT_AND_RECOVER(); }

basic_string_text
    : BASIC_STRING
    ;
    catch [...] { REPORT_AND_RECOVER(); }

ml_basic_string_text
    : ML_BASIC_STRING
    ;
    catch [...] { REPORT_AND_RECOVER(); }

literal_string_text
    : LITERAL_STRING
    ;
    catch [...] { REPORT_AND_RECOVER(); }

ml_literal_string_text
    : ML_LITERAL_STRING
    ;
    catch [...] { REPORT_AND_RECOVER(); }

offset_date_time_text
    : OFFSET_DATE_TIME
    ;
    catch [...] { REPORT_AND_RECOVER(); }

local_date_time_text
    : LOCAL_DATE_TIME
    ;
    catch [...] { REPORT_AND_RECOVER(); }

local_date_text
    : LOCAL_DATE
    ;
    catch [...] { REPORT_AND_RECOVER(); }

local_time_text
    : LOCAL_TIME
    ;
    catch [...] { REPORT_AND_RECOVER(); }
