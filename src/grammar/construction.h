// What the constructors of the recognisers check.  Where memory runs out, the runtime makes
// objects without some of their parts and does not say so; using such an object would end the
// process.
//
// This is C, like the parser that the tool makes.
#pragma once

#include <antlr3.h>
#include <stdbool.h>

// (For a stack that cannot be made there is an address of its own.)
static inline bool isStackMade(pANTLR3_STACK stack)
{
    return stack != (pANTLR3_STACK)ANTLR3_FUNC_PTR(ANTLR3_ERR_NOMEM);
}

static inline bool isStateMade(pANTLR3_RECOGNIZER_SHARED_STATE state)
{
    return isStackMade(state->following);
}

static inline bool areVectorsMade(pANTLR3_VECTOR_FACTORY vectors)
{
    return vectors != NULL && vectors->pools[0] != NULL && isStackMade(vectors->freeStack);
}

static inline bool areTreesMade(pANTLR3_ARBORETUM trees)
{
    return trees != NULL && trees->pools[0] != NULL && isStackMade(trees->nilStack) &&
           areVectorsMade(trees->vFactory);
}

static inline pANTLR3_ARBORETUM treesOf(pANTLR3_BASE_TREE_ADAPTOR adaptor)
{
    return ((pANTLR3_COMMON_TREE_ADAPTOR)adaptor->super)->arboretum;
}

static inline bool isAdaptorMade(pANTLR3_BASE_TREE_ADAPTOR adaptor)
{
    return adaptor != NULL && adaptor->tokenFactory->pools[0] != NULL &&
           areTreesMade(treesOf(adaptor));
}

// The functions below free what was made.

static inline void forgetUnmade(pANTLR3_STACK* stack)
{
    if (!isStackMade(*stack))
    {
        *stack = NULL;
    }
}

// A recogniser's own state is freed with it, a shared one is not.
static inline void prepareState(pANTLR3_BASE_RECOGNIZER recogniser,
                                pANTLR3_RECOGNIZER_SHARED_STATE shared)
{
    forgetUnmade(&recogniser->state->following);
    if (shared != NULL)
    {
        recogniser->state = NULL;
    }
}

static inline void freeParser(pANTLR3_PARSER parser, pANTLR3_RECOGNIZER_SHARED_STATE shared)
{
    if (parser != NULL)
    {
        prepareState(parser->rec, shared);
        parser->free(parser);
    }
}

static inline void freeTreeParser(pANTLR3_TREE_PARSER parser,
                                  pANTLR3_RECOGNIZER_SHARED_STATE shared)
{
    if (parser != NULL)
    {
        prepareState(parser->rec, shared);
        parser->free(parser);
    }
}

static inline void freeVectors(pANTLR3_VECTOR_FACTORY vectors)
{
    if (vectors != NULL)
    {
        forgetUnmade(&vectors->freeStack);
        vectors->close(vectors);
    }
}

static inline void freeAdaptor(pANTLR3_BASE_TREE_ADAPTOR adaptor)
{
    if (adaptor == NULL)
    {
        return;
    }
    const pANTLR3_ARBORETUM trees = treesOf(adaptor);
    if (trees != NULL)
    {
        forgetUnmade(&trees->nilStack);
        forgetUnmade(&trees->vFactory->freeStack);
        adaptor->free(adaptor);
        return;
    }
    // The adaptor's own operation takes the trees for granted.
    adaptor->tokenFactory->close(adaptor->tokenFactory);
    ANTLR3_FREE(adaptor->super);
}
