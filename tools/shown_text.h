// Texts as the tool shows them: as the diagnosis does.
#pragma once

#include "diagnosis/characters.h"

namespace tool
{

using vorn::parsers::toml::diagnosis::characterBegin;
using vorn::parsers::toml::diagnosis::printable;

} // namespace tool
