#pragma once

namespace tool
{

// The tool's exit statuses.  For several files the highest of them counts.  After
// `usage` no file has been read.
enum Status
{
    accepted = 0,
    rejected = 1,
    usage = 2,
    unreadable = 3, // or the output could not be written
};

// Of a file.
inline const char* statusName(Status status)
{
    return status == accepted ? "accepted" : status == rejected ? "rejected" : "unreadable";
}

} // namespace tool
