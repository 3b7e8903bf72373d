#pragma once

#include <algorithm>
#include <cstdio>
#include <string>

#include "commands.h"
#include "examination.h"
#include "input.h"
#include "text_report.h"
#include "utf8.h"

namespace tool
{

// Hands each file to `look`, with the progress, and answers with the worst status.
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

// Prints what is wrong with a document on standard error.
inline void explain(const std::string& name, const std::string& text, const Diagnosis& diagnosis,
                    const Options& options)
{
    const std::string report = textReport(name, text, diagnosis, useColour(options.colour));
    std::fputs(report.c_str(), stderr);
}

} // namespace tool
