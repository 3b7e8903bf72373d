// Logging of the device's utility library.
#pragma once

// Logs one printf-style message.
//
// `module` and `function` name the caller, `sourceFile` and `line` the place of
// the call.  `level` is syslog's: 3 is an error.  The two integers after it are
// reserved: the library passes 0.
__attribute__((visibility("default"), format(printf, 8, 9))) void
logInternal(const char* module, const char* sourceFile, const char* function, int line, int level,
            int, int, const char* format, ...);
