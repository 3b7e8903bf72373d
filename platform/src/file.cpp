#include "vorn/utils/file.h"

#include <fcntl.h>
#include <sys/stat.h>

bool fileExists(const char* path, bool followLinks, int directory)
{
    struct stat status = {};
    return fstatat(directory, path, &status, followLinks ? 0 : AT_SYMLINK_NOFOLLOW) == 0 &&
           !S_ISDIR(status.st_mode);
}
