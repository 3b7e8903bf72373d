// What `vorn-toml fix` takes for the same meaning, with which it checks its results.
#include "fix/meaning.h"
#include "fix/toml_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace tool::fixing;

namespace
{

std::string meaningToTheLibrary(const std::string& text)
{
    MeaningVisitor visitor;
    EXPECT_TRUE(visitTomlTree(text, visitor)) << text;
    return visitor.meaning();
}

std::string meaningInToml(const std::string& text)
{
    const Reading reading = readToml(text);
    EXPECT_FALSE(reading.mistake) << text;
    return meaningOf(text, reading.pieces);
}

TEST(FixMeaning, IsTheSameInOtherForms)
{
    struct Case
    {
        std::string toml;
        std::string here;
    };
    for (const auto& [toml, here] : std::vector<Case>{
             {"a = 1", "'a' = 1 # c\n"},
             {"3.14 = 1\n", "\"3\".'14' = 1\n"},
             {"[a.b]\n[[c]]\n", "[ \"a\" . b ]\n[[\"\\u0063\"]]\n"},
             {"a = 'b\\'\n", "a = \"\"\"\nb\\\\\"\"\"\n"},
             {"a = [1, 2,\n]\n", "a = [1,\n2]\n"},
             {"a = {b = [true], c.d = inf}\n", "a={b=[true],'c'.d=inf}\n"},
             {"a = [1979-05-27T07:32:00z, 07:32:00]\n", "a = [1979-05-27T07:32:00Z, 07:32:00]\n"},
         })
    {
        EXPECT_EQ(meaningInToml(toml), meaningToTheLibrary(here)) << toml;
    }
}

TEST(FixMeaning, IsAnotherForOtherDocuments)
{
    const std::vector<std::string> documents = {
        "",
        "a = 1\n",
        "a = '1'\n",
        "a = '1 '\n",
        "a = 1.0\n",
        "a = true\n",
        "a = 2024-01-31\n",
        "a = 2024-01-31T07:32:00\n",
        "a = 2024-01-31T07:32:00Z\n",
        "a = 07:32:00\n",
        "a = [1]\n",
        "a = [[1]]\n",
        "a = [1, 1]\n",
        "a = {b = 1}\n",
        "a.b = 1\n",
        "\"a.b\" = 1\n",
        "[a]\nb = 1\n",
        "[[a]]\nb = 1\n",
        "[a.b]\n",
        "[a]\n[b]\n",
        "a = 1\na = 1\n",
        "a = '1'\nb = 1\n",
    };
    for (const std::string& one : documents)
    {
        for (const std::string& other : documents)
        {
            EXPECT_EQ(meaningInToml(one) == meaningToTheLibrary(other), one == other)
                << one << other;
        }
    }
}

} // namespace
