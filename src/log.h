// The library's log lines.
#pragma once

#include <vorn/utils/log.h>

// Logs an error: printf-style format and arguments.  The place that it names is that of the
// call, or one that has been handed on.
#define VORN_LOG_ERROR(...) VORN_LOG_ERROR_AT(__func__, __LINE__, __VA_ARGS__)
#define VORN_LOG_ERROR_AT(function, line, ...)                                                     \
    logInternal("vorn_parsers", __FILE__, function, line, 3, 0, 0, __VA_ARGS__)
