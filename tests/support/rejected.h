// Documents that are rejected.
#pragma once

#include "support/driver_log.h"
#include "support/event_recorder.h"

#include <string>
#include <vector>

namespace test
{

struct RejectedDocument
{
    std::string text;
    Events events;     // that are made all the same
    Messages messages; // that are logged
};

void expectRejected(const std::vector<RejectedDocument>& documents);

} // namespace test
