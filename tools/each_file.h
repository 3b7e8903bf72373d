#pragma once

#include <algorithm>
#include <cstdio>
#include <string>

#include "commands.h"
#include "examination.h"
#include "input.h"
#include "text_report.h"

namespace tool
{

// Calls `look` for each file, with the progress, and returns the worst status.
template <typename Look>
Status eachFile(const Options& options, bool isShown, Look look)
{
    Progress progress(options.files.size(), isShown && isErrorTerminal());
    Status worst = accepted;
    for (const std::string& file : options.files)
    {
        worst = std::max(worst, look(file, progress));
    }
    return worst;
}

// Explains on standard error what is wrong with a document.
inline void explain(const std::string& name, const std::string& text,
                    const Examination& examination, const Options& options)
{
    const std::string report = textReport(name, text, examination, useColour(options.colour));
    std::fputs(report.c_str(), stderr);
}

} // namespace tool
