#include "diagnosis/selection.h"

#include "diagnosis/codes.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace toml = vorn::parsers::toml;
namespace diagnosis = vorn::parsers::toml::diagnosis;
using diagnosis::Mistake;

namespace
{

using Mistakes = std::vector<Mistake>;

Mistake mistake(std::size_t begin, std::size_t end, const char* code = "code",
                toml::Severity severity = toml::Severity::error)
{
    return {severity, begin, end, code, "message", "hint"};
}

std::string shown(const Mistakes& mistakes)
{
    std::string text;
    for (const Mistake& one : mistakes)
    {
        text += std::to_string(one.begin) + ' ' + one.code + ' ';
    }
    return text;
}

std::string withOthers(Mistakes mistakes, Mistakes others)
{
    diagnosis::addOthers(std::move(others), mistakes);
    return shown(mistakes);
}

std::string withoutConsequences(Mistakes mistakes)
{
    diagnosis::leaveOutConsequences(mistakes);
    return shown(mistakes);
}

std::string first(std::size_t max, Mistakes mistakes)
{
    diagnosis::keepFirst(max, mistakes);
    return shown(mistakes);
}

} // namespace

TEST(Selection, addsOthersInOrder)
{
    EXPECT_EQ(withOthers({}, {mistake(1, 2)}), "1 code ");
    EXPECT_EQ(withOthers({mistake(5, 6, "b"), mistake(1, 2, "a")},
                         {mistake(0, 1, "x"), mistake(3, 4, "y"), mistake(8, 9, "z")}),
              "0 x 1 a 3 y 5 b 8 z ");
}

TEST(Selection, addsNoOtherWithinAMistake)
{
    // The second is where the mistake ends.
    EXPECT_EQ(withOthers({mistake(1, 5, "a")}, {mistake(4, 5, "x"), mistake(5, 6, "y")}),
              "1 a 5 y ");
    // A mistake without an end of its own has its place, too.
    EXPECT_EQ(withOthers({mistake(3, 3, "a")}, {mistake(3, 4, "x"), mistake(4, 5, "y")}),
              "3 a 4 y ");
    // Each is compared with the last one before it.
    EXPECT_EQ(withOthers({mistake(7, 9, "b"), mistake(1, 3, "a")},
                         {mistake(2, 3, "x"), mistake(5, 6, "y"), mistake(8, 9, "z")}),
              "1 a 5 y 7 b ");
}

TEST(Selection, keepsTheFirst)
{
    EXPECT_EQ(first(2, {mistake(3, 4, "c"), mistake(1, 2, "a"), mistake(2, 3, "b")}), "1 a 2 b ");
    EXPECT_EQ(first(2, {mistake(2, 3, "b"), mistake(1, 2, "a")}), "1 a 2 b ");
    EXPECT_EQ(first(3, {mistake(1, 2, "a")}), "1 a ");
    // Those of one place stay in their order.
    EXPECT_EQ(first(2, {mistake(1, 2, "b"), mistake(1, 2, "a")}), "1 b 1 a ");
}

TEST(Selection, leavesOutWhatFollowsFromAnotherEncoding)
{
    const char* const utf16 = diagnosis::codes::utf16;
    const auto warning = toml::Severity::warning;
    EXPECT_EQ(withoutConsequences({mistake(1, 2, "a"), mistake(3, 4, utf16)}), "3 utf-16 ");
    // An error says more than a warning.
    EXPECT_EQ(withoutConsequences({mistake(0, 1, utf16, warning), mistake(3, 4, utf16)}),
              "3 utf-16 ");
    EXPECT_EQ(withoutConsequences({mistake(0, 1, "a", warning), mistake(1, 2, utf16, warning)}),
              "1 utf-16 ");
    // A warning is not the reason of errors.
    EXPECT_EQ(withoutConsequences({mistake(0, 1, utf16, warning), mistake(3, 4, "a")}),
              "0 utf-16 3 a ");
    EXPECT_EQ(withoutConsequences({mistake(1, 2, "a"), mistake(3, 4, "b")}), "1 a 3 b ");
}
