#pragma once

#include "support/event_recorder.h"
#include "support/log_recorder.h"
#include "support/stderr_capture.h"

#include <string>
#include <vector>

namespace test
{

// Everything that a reading of a document shows.
struct Reading
{
    bool accepted = false;
    Events events;
    std::vector<LogLine> lines;
    std::string standardError;
};

// Reads a document: a text or a FilePath.
template <typename Source>
Reading read(const Source& source)
{
    EventRecorder visitor;
    const LogRecorder log;
    const StderrCapture standardError;
    const bool accepted = vorn::parsers::toml::visitTomlTree(source, visitor);
    return {accepted, visitor.events(), log.lines(), standardError.text()};
}

} // namespace test
