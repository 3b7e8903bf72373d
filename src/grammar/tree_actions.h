// What the actions of TomlTree.g need.
#pragma once

#include <vorn/parsers/toml.h>

#include "runtime_string.h"

using TomlVisitor = vorn::parsers::toml::ITomlTreeVisitor;
using vorn::parsers::toml::characters;

// How a text rule takes a node that does not fit: the error is reported, counted and
// cleared.
#define REPORT_AND_RECOVER()                                                                       \
    do                                                                                             \
    {                                                                                              \
        PREPORTERROR();                                                                            \
        PRECOVER();                                                                                \
    } while (false)
