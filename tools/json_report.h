#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

#include "diagnosis.h"
#include "status.h"

namespace tool
{

// The status and the diagnosis of a file, for editors.
nlohmann::ordered_json jsonReport(const std::string& name, Status status, std::string_view text,
                                  const Diagnosis& diagnosis);

} // namespace tool
