#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

#include "examination.h"

namespace tool
{

// The status and the diagnosis of a file, for editors.
nlohmann::ordered_json jsonReport(const std::string& name, const Examination& examination);

} // namespace tool
