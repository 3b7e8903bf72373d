#include <gtest/gtest.h>

#include "pipeline/deferred_cancellation.h"

using vorn::parsers::toml::DeferredCancellation;

namespace
{

int cancelState()
{
    int state = 0;
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &state);
    pthread_setcancelstate(state, nullptr);
    return state;
}

} // namespace

TEST(DeferredCancellation, lastsAsLongAsItLives)
{
    ASSERT_EQ(cancelState(), PTHREAD_CANCEL_ENABLE);
    {
        const DeferredCancellation deferred;
        EXPECT_EQ(cancelState(), PTHREAD_CANCEL_DISABLE);
        {
            const DeferredCancellation again;
        }
        EXPECT_EQ(cancelState(), PTHREAD_CANCEL_DISABLE);
    }
    EXPECT_EQ(cancelState(), PTHREAD_CANCEL_ENABLE);
}
