// The client of listener_config.cpp, for tests that call what it has.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <iostream>

#define main listenerMain
namespace
{
namespace listener
{
#include "listener_config.cpp"
} // namespace listener

[[maybe_unused]] constexpr auto itsMain = &listener::listenerMain;

} // namespace
#undef main
