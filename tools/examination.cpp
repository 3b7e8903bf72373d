#include "examination.h"

#include "log.h"
#include "silent_error_stream.h"

namespace tool
{

Examination examine(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    Examination examination;
    {
        const HeldLog log;
        const SilentErrorStream silent;
        examination.status =
            vorn::parsers::toml::visitTomlTree(text, visitor) ? accepted : rejected;
    }
    examination.findings = vorn::parsers::toml::diagnose(text);
    return examination;
}

} // namespace tool
