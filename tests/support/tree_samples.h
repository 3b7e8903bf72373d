// Trees of which the tests of the tree parser are put together.
#pragma once

#include <string>
#include <vector>

#include "support/event_lists.h"

namespace test
{

inline const std::string keyA = R"(KEY_BARE(BARE_KEY "a"))";
inline const std::string one = R"(VAL_INTEGER(DEC_INT "1"))";
inline const std::string a = "KEYVAL(" + keyA + ", " + one + ")";
inline const std::string end = R"( NL "\n" EOF)";

inline const Events aIsOne = pair(bare("a"), integer("1"));

// Nodes without children that are no value.
inline const std::vector<std::string> noValues = {
    R"(<invalid> "Tree Error Node")",
    // Tokens.
    R"(BARE_KEY "x")", R"(DEC_INT "1")", R"(BOOLEAN "true")", R"(ESC "x")", R"(FULL_DATE "x")",
    R"(NL "\n")", R"(WS " ")", R"(YEAR "1979")",
    // Roots, and the end.
    "KEYVAL", "HEADER_TABLE", "HEADER_ARRAY_TABLE", "KEY_BARE", "KEY_QUOTED", "KEY_DOTTED", "EOF"};

// Nodes without children that begin no line.
inline const std::vector<std::string> noLines = {R"(<invalid> "Tree Error Node")",
                                                 R"(BARE_KEY "a")",
                                                 R"(COMMENT "#")",
                                                 R"(DEC_INT "1")",
                                                 "VAL_ARRAY",
                                                 "KEY_DOTTED"};

} // namespace test
