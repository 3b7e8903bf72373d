// File tests of the device's utility library.
#pragma once

// Returns whether `path` names something that can be read as a file.  A directory
// does not count.  `followLinks` says whether a symbolic link stands for what it
// points to.  `directory` is the descriptor that a relative path starts from
// (AT_FDCWD: the working directory).
__attribute__((visibility("default"))) bool fileExists(const char* path, bool followLinks,
                                                       int directory);
