#pragma once

#include "draft.h"

namespace tool::fixing
{

// Writes keys, strings, dates and the end of the document as the library accepts them.  Comes
// after the passes that drop pieces.
void respell(Draft& draft);

} // namespace tool::fixing
