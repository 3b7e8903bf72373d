// Comments with characters above U+FFFF, which the library does not accept.
#pragma once

#include "draft.h"

namespace tool::fixing
{

bool isHighComment(const Draft& draft, std::size_t piece);

// Drops them, and lines that consist of nothing else.
void dropHighComments(Draft& draft);

} // namespace tool::fixing
