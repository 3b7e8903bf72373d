#pragma once

namespace tool
{

// What can be asked of fix.
struct FixSwitches
{
    bool diff = false;         // print the changes, write nothing
    bool check = false;        // only say what would change
    bool dropComments = false; // that cannot be expressed
};

} // namespace tool
