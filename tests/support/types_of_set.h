// What is in a set of token types of the runtime.
#pragma once

#include <antlr3.h>

#include <set>

namespace test
{

using Types = std::set<ANTLR3_UINT32>;

// Frees the set.
inline Types typesOf(pANTLR3_BITSET set)
{
    Types types;
    for (ANTLR3_UINT32 type = 0; type < 64 * set->blist.length; ++type)
    {
        if (set->isMember(set, type) == ANTLR3_TRUE)
        {
            types.insert(type);
        }
    }
    set->free(set);
    return types;
}

} // namespace test
