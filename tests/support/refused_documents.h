// Documents with a mistake in them.
#pragma once

#include <string>
#include <vector>

namespace test
{

// What is wrong, and texts in which it is.
struct RefusedDocuments
{
    std::string mistake;
    std::vector<std::string> texts;
};

inline const std::vector<RefusedDocuments> refusedDocuments = {
    {"no line break after a pair or a header",
     {"a = 1", "a = 1 ", "a = 1 # c", "[t]", "[[t]]", "[t] # c", "a = 1\nb = 2", "a = [1]",
      "a = {b = 1}", "a = 1\n[t]", "a = 'x'"}},
    {"something after a pair or a header on its line",
     {"a = 1 b = 2\n", "a = 1 2\n", "a = 1,\n", "a = 1]\n", "a = 1}\n", "a = 'x' 'y'\n",
      "a = [1] 2\n", "a = {b = 1} c\n", "[a] b = 1\n", "[a] [b]\n", "[a]]\n", "[[a]]]\n", "[a].b\n",
      "a = 1 = 2\n", "a = 1979-05-27 x\n"}},
    {"a line that begins with no key",
     {// Values.
      "1 = 1\n", "1.5 = 1\n", "true = 1\n", "inf = 1\n", "nan = 1\n", "0x1 = 1\n", "0o1 = 1\n",
      "0b1 = 1\n", "1979-05-27 = 1\n", "1979-05-27T07:32:00 = 1\n", "1979-05-27T07:32:00Z = 1\n",
      "07:32:00 = 1\n", "\"\"\"a\"\"\" = 1\n", "'''a''' = 1\n",
      // Marks.
      "= 1\n", ". = 1\n", ", = 1\n", "]\n", "{\n", "}\n", "a = 1\ntrue = 1\n"}},
    {"a pair that is not whole",
     {"a\n", "a =\n", "a = \n", "a", "a =", "a = # c\n", "a b = 1\n", "a 'b' = 1\n", "a, b = 1\n",
      "a [b] = 1\n", "a == 1\n", "a : 1\n", "a\n= 1\n", "a =\n1\n", "a 1\n", "\"a\" \"b\" = 1\n"}},
    {"a dotted key with a part that is none",
     {"a. = 1\n", ".a = 1\n", "a..b = 1\n", "a.1.b = 1\n", "a.true = 1\n", "a.b. = 1\n",
      "a.'''b''' = 1\n", "a.[b] = 1\n", "a.\nb = 1\n", "a.b c = 1\n", "a.b\n", "a.1979-05-27 = 1\n",
      "[a.]\n", "[.a]\n", "[a..b]\n", "[a.1]\n", "[[a.]]\n", "a = {b. = 1}\n", "3.14 = 1\n"}},
    {"a header that is not whole",
     {"[\n",       "[]\n",        "[ ]\n",     "[[]]\n",  "[[ ]]\n",   "[a\n",      "[a",
      "[[a]\n",    "[[a] b]\n",   "[[a\n",     "[a b]\n", "[a, b]\n",  "[a = 1]\n", "[1]\n",
      "[true]\n",  "[[1]]\n",     "[\na]\n",   "[a\n]\n", "[[a\n]]\n", "[[a]\n]\n", "[[\na]]\n",
      "[\n[a]]\n", "['''a''']\n", "[[[a]]]\n", "[{a}]\n"}},
    {"a value that is none",
     {"a = hello\n", "a = b.c\n", "a = ]\n", "a = }\n", "a = ,\n", "a = =\n", "a = .\n", "a = .5\n",
      "a = 01\n", "a = 1_\n", "a = TRUE\n", "a = -\n", "a = 1979-05-27T\n", "a = infinity\n"}},
    {"an array without an element",
     {"a = []\n", "a = [ ]\n", "a = [\n]\n", "a = [,]\n", "a = [,1]\n", "a = [[]]\n",
      "a = [1, []]\n", "a = [# c\n]\n", "a = [}\n", "a = [a]\n", "a = [1, a]\n", "a = [=]\n"}},
    {"an array that is not closed",
     {"a = [\n", "a = [1\n", "a = [1,\n", "a = [1, 2\n", "a = [1", "a = [", "a = [[1]\n",
      "a = [1}\n", "a = [1, 2}\n", "a = [{b = 1]\n", "a = [1\nb = 2\n", "a = [1, 2\nb = 2\n"}},
    {"elements without a comma, or with two",
     {"a = [1 2]\n", "a = [1\n2]\n", "a = [1, 2 3]\n", "a = [1,, 2]\n", "a = [1, 2,,]\n",
      "a = [1,,]\n", "a = [[1] [2]]\n", "a = [1\n\n2]\n", "a = [1.2, 3 . 4]\n", "a = [1 = 2]\n"}},
    {"a line break in an array where none may be",
     {"a = [\n1\n]\n", "a = [1\n]\n", "a = [1,\n]\n", "a = [1, 2,\n]\n", "a = [\n1,\n2,\n]\n",
      "a = [1\n,\n]\n", "a = [1, 2\n,\n]\n", "a = [1 # c\n]\n", "a = [1, # c\n]\n", "a = [1\n,]\n",
      "a = [[1]\n]\n", "a = [{b = 1}\n]\n", "a = [1, [2\n]]\n", "a = [1, 2\n \n]\n"}},
    {"a second line break in an array where one may be",
     {"a = [\n \n1]\n", "a = [# c\n# d\n1]\n", "a = [\n# c\n1]\n", "a = [1,\n \n2]\n",
      "a = [1,\n# c\n2]\n", "a = [1,\n  # note\n  2]\n", "a = [1\n \n, 2]\n", "a = [1\n# c\n, 2]\n",
      "a = [1, 2\n# c\n]\n", "a = [1, 2\n \n# c\n, 3]\n", "a = [1, 2,\n \n3]\n"}},
    {"an inline table without a pair",
     {"a = {}\n", "a = { }\n", "a = {,}\n", "a = {,b = 1}\n", "a = {1}\n", "a = {b}\n",
      "a = {b =}\n", "a = {= 1}\n", "a = {[b]}\n", "a = {{b = 1}}\n", "a = {true = 1}\n",
      "a = {b = {}}\n", "a = [{}]\n", "a = {b = []}\n"}},
    {"an inline table that is not closed",
     {"a = {\n", "a = {b = 1\n", "a = {b = 1,\n", "a = {b = 1", "a = {b = 1]\n",
      "a = {b = {c = 1}\n", "a = {b = [1}\n", "a = {"}},
    {"pairs without a comma, or with one too many",
     {"a = {b = 1 c = 2}\n", "a = {b = 1,}\n", "a = {b = 1, }\n", "a = {b = 1,, c = 2}\n",
      "a = {b = 1, c = 2,}\n", "a = {b = 1, c}\n", "a = {b = 1, 2}\n", "a = {b = 1, [c]}\n",
      "a = {b = 1; c = 2}\n", "a = [{b = 1,}]\n"}},
    {"a line break in an inline table",
     {"a = {\nb = 1}\n", "a = {b\n= 1}\n", "a = {b =\n1}\n", "a = {b = 1\n}\n",
      "a = {b = 1\n, c = 2}\n", "a = {b = 1,\nc = 2}\n", "a = {# c\nb = 1}\n",
      "a = {b = 1 # c\n}\n", "a = [{b = 1\n}]\n", "a = {b = [1, 2\n]\n}\n"}},
    {"a text that is no token",
     {// Where the lexer finds an error.
      "@\n", "a = @\n", "a = 'x\n", "a = \"x\n", "a = \"\\q\"\n", "a = 1.\n", "a = +\n",
      "a = \"\"\"x\n", "a = 1979-05-27 # c\n", "a = 07:32\n", "\xd0\xba = 1\n", "a = 1\r",
      "a = 1 \xc3\xa9\n", "a = [1, @]\n", "a = {b = @}\n", "a.@ = 1\n", "[@]\n", "a = 1\n@",
      "a = '\xff'\n",
      // Byte order marks elsewhere than at the start, or twice there.
      "a = \xef\xbb\xbf"
      "1\n",
      "\xef\xbb\xbf\xef\xbb\xbf",
      "\xef\xbb\xbf\xef\xbb\xbf"
      "a = 1\n",
      "\n\xef\xbb\xbf"
      "a = 1\n"}},
};

// Documents that are valid as the runtime decodes them, but that hold bytes which the
// scanner leaves to the lexer: surrogates and characters that the end cuts off.
inline const std::vector<std::string> unusualDocuments = {
    "# \xed\xa0\x80\n", "a = '\xed\xbf\xbf'\n", "\xef\xbb", "\xef",
    "a = 1\n\xc3",      "a = 1\n# c\n\xe2\x82",
};

} // namespace test
