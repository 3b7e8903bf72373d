#pragma once

namespace tool
{

// The tool's exit statuses.  Over several inputs the highest of them counts, but for
// `usage`, which ends a run before it reads any.
enum Status
{
    accepted = 0,
    rejected = 1,
    usage = 2,
    unreadable = 3, // or the output cannot be written
};

} // namespace tool
