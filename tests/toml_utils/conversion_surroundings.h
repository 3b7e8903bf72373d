// What the conversions may depend on: locales, the way of rounding, and the time zone.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace test
{

// They stay until others are entered.  The first ones are the classic ones, which are to be
// entered at the end.
struct Surroundings
{
    std::string name;
    bool isClassic; // whether the short way is to be taken
    std::function<void()> enter;
};

std::vector<Surroundings> numberSurroundings(); // without ways of rounding
std::vector<Surroundings> floatSurroundings();
std::vector<Surroundings> dateTimeSurroundings();

} // namespace test
