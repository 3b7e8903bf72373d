// Names in tables.
#include "diagnosis/strict_names.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn::parsers::toml::diagnosis;

namespace
{

const char* endOf(const std::string& text)
{
    return text.data() + text.size();
}

} // namespace

TEST(StrictNames, areFoundAgain)
{
    const std::string document = R"(a "a" 'a' "\u0061" b "")";
    const std::string_view text = document;
    Names names(endOf(document));
    EXPECT_TRUE(names.at(0, text.substr(0, 1)).isNew);
    for (const std::string_view part : {text.substr(2, 3), text.substr(6, 3), text.substr(10, 8)})
    {
        const Names::Found found = names.at(0, part);
        EXPECT_FALSE(found.isNew);
        EXPECT_EQ(found.name->part, text.data());
    }
    EXPECT_TRUE(names.at(0, text.substr(19, 1)).isNew);
    EXPECT_TRUE(names.at(0, text.substr(21, 2)).isNew);
    EXPECT_FALSE(names.at(0, text.substr(21, 2)).isNew);
}

TEST(StrictNames, areOfOneTable)
{
    const std::string document = "a";
    Names names(endOf(document));
    const TableId table = names.newTable();
    EXPECT_NE(table, 0U);
    EXPECT_TRUE(names.at(0, document).isNew);
    EXPECT_TRUE(names.at(table, document).isNew);
    EXPECT_FALSE(names.at(table, document).isNew);
    EXPECT_NE(names.newTable(), table);
}

TEST(StrictNames, areForgottenBackToAState)
{
    // Enough of them to make room for more in between.
    std::string document;
    for (int number = 1000; number < 2000; ++number)
    {
        document += std::to_string(number) + ' ';
    }
    const std::string_view text = document;
    Names names(endOf(document));
    for (std::size_t known : {0U, 1U, 30U, 500U, 999U})
    {
        names.restore({});
        for (std::size_t at = 0; at < known; ++at)
        {
            EXPECT_TRUE(names.at(0, text.substr(at * 5, 4)).isNew);
        }
        const Names::State state = names.state();
        for (int times = 0; times < 2; ++times)
        {
            const TableId table = names.newTable();
            for (std::size_t at = 0; at < 1000; ++at)
            {
                EXPECT_EQ(names.at(0, text.substr(at * 5, 4)).isNew, at >= known);
                EXPECT_TRUE(names.at(table, text.substr(at * 5, 4)).isNew);
            }
            names.restore(state);
            EXPECT_EQ(names.state().count, known);
        }
        EXPECT_EQ(names.newTable(), state.lastTable + 1);
    }
}
