// The library's log lines.
#pragma once

#include <vorn/utils/log.h>

// Logs an error with the place of the call: printf-style format and arguments.
#define VORN_LOG_ERROR(...)                                                                        \
    logInternal("vorn_parsers", __FILE__, __func__, __LINE__, 3, 0, 0, __VA_ARGS__)
