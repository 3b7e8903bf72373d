#include "recognition_errors.h"

namespace test
{

std::string errorKind(pANTLR3_BASE_RECOGNIZER recogniser)
{
    const ANTLR3_UINT32 type = recogniser->state->exception->type;
    switch (type)
    {
    case ANTLR3_RECOGNITION_EXCEPTION:
        return "recognition";
    case ANTLR3_MISMATCHED_TOKEN_EXCEPTION:
        return "mismatched token";
    case ANTLR3_NO_VIABLE_ALT_EXCEPTION:
        return "no viable alternative";
    case ANTLR3_MISMATCHED_SET_EXCEPTION:
        return "mismatched set";
    case ANTLR3_EARLY_EXIT_EXCEPTION:
        return "early exit";
    case ANTLR3_MISMATCHED_TREE_NODE_EXCEPTION:
        return "mismatched tree node";
    case ANTLR3_REWRITE_EARLY_EXCEPTION:
        return "rewrite early exit";
    case ANTLR3_UNWANTED_TOKEN_EXCEPTION:
        return "unwanted token";
    case ANTLR3_MISSING_TOKEN_EXCEPTION:
        return "missing token";
    default:
        return "kind " + std::to_string(type);
    }
}

void collectErrors(pANTLR3_BASE_RECOGNIZER recogniser, ErrorKinds& kinds)
{
    recogniser->state->userp = &kinds;
    recogniser->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    { static_cast<ErrorKinds*>(failed->state->userp)->push_back(errorKind(failed)); };
}

} // namespace test
