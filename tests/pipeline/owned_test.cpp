#include <gtest/gtest.h>

#include "pipeline/owned.h"

#include <string>
#include <utility>

using vorn::parsers::toml::Owned;

namespace
{

// Like the runtime's objects, freed by an operation of its own.
struct Object
{
    void (*free)(Object*);
    std::string* freed;
    char name;
};

Object object(char name, std::string& freed)
{
    return {[](Object* self) { *self->freed += self->name; }, &freed, name};
}

} // namespace

TEST(Owned, isFreedWithItsScopeTheLastOneFirst)
{
    std::string freed;
    Object first = object('1', freed);
    Object second = object('2', freed);
    {
        const Owned<Object> a(&first);
        const Owned<Object> b(&second);
        EXPECT_EQ(freed, "");
    }
    EXPECT_EQ(freed, "21");
}

TEST(Owned, isFreedOnceByItsLastOwner)
{
    std::string freed;
    Object one = object('1', freed);
    {
        Owned<Object> owner(&one);
        const Owned<Object> last = std::move(owner);
    }
    EXPECT_EQ(freed, "1");
}

TEST(Owned, mayBeNothing)
{
    const Owned<Object> nothing(nullptr);
    EXPECT_EQ(nothing, nullptr);
}

TEST(Owned, closesInputStreams)
{
    static int closed;
    closed = 0;
    ANTLR3_INPUT_STREAM input = {};
    input.close = [](pANTLR3_INPUT_STREAM) { ++closed; };
    {
        const Owned<ANTLR3_INPUT_STREAM> owned(&input);
    }
    EXPECT_EQ(closed, 1);
}
