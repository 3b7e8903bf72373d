#pragma once

#include "draft.h"

namespace tool::fixing
{

// Moves brackets, line breaks and comments in arrays to where the library accepts them.  It
// accepts one run of line breaks in most places, and none in a few; a comment or blanks on a
// line of their own part two runs.  Such comments go to the lines before the statement.
void layOutArrays(Draft& draft);

} // namespace tool::fixing
