// What documents that are mistaken here and there are made of.
#pragma once

#include <string>
#include <vector>

namespace test
{

// Valid lines, lines with mistakes, parts of both, and what comes between them.
inline const std::vector<std::string> linePieces = {
    "a = 1\n",
    "a=1\n",
    "[t]\n",
    " [[ t . 'u' ]] # c\r\n",
    "b.\"c\" = [1, {d = 'e'}, [\n]] # c\n",
    "caf\xc3\xa9 = 1\n",
    "s = \"caf\xc3\xa9\" # \xe2\x82\xac\n",
    "m = '''\n\xc3\xa9\n'''\n",
    "[a\n",
    "a = = 1\n",
    "a = [1, [2\n",
    "c = 'x\n",
    "c = \"\\q\"\n",
    "a",
    " = ",
    "1",
    "'s'",
    ".",
    ",",
    "[",
    "]",
    "{",
    "}",
    "\n",
    "\n\n",
    "\r\n",
    "\r",
    " ",
    "\t",
    "# c",
    "# \xc3\xa9\n",
    "@",
    std::string(1, '\0'),
    "\xc3\xa9",
    "\xc0\x8a",
    "\xf8\x80\x80\x80\x8a",
    "\xf0\x9f\x98\x80",
};

} // namespace test
