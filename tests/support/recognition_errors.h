#pragma once

#include <antlr3.h>

#include <string>
#include <vector>

namespace test
{

// The kinds of the errors that a recogniser displayed, in order: "no viable alternative",
// "mismatched set", ...
using ErrorKinds = std::vector<std::string>;

// Installs a display that adds each error's kind to `kinds`, which must live as long as
// the recogniser reports errors, and prints nothing.
void collectErrors(pANTLR3_BASE_RECOGNIZER recogniser, ErrorKinds& kinds);

// The kind of the error that the recogniser is working on.
std::string errorKind(pANTLR3_BASE_RECOGNIZER recogniser);

} // namespace test
