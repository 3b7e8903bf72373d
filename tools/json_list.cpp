#include "json_list.h"

#include <cstdio>

namespace tool
{

std::string indented(const Json& value, int spaces)
{
    const std::string indentation(static_cast<std::size_t>(spaces), ' ');
    // Texts have no line feeds: these are escaped in them.
    const std::string lines = value.dump(2, ' ', true, Json::error_handler_t::replace);
    std::string text = indentation;
    for (std::size_t at = 0; at < lines.size();)
    {
        const std::size_t next = std::min(lines.find('\n', at), lines.size() - 1) + 1;
        text.append(lines, at, next - at);
        text += next < lines.size() ? indentation : "";
        at = next;
    }
    return text;
}

void JsonList::print(const std::string& elements)
{
    if (!elements.empty())
    {
        std::fputs(isEmpty_ ? "[\n" : separator(), stdout);
        std::fputs(elements.c_str(), stdout);
        isEmpty_ = false;
    }
}

void JsonList::end() const
{
    std::printf(isEmpty_ ? "[%*s]" : "\n%*s]", isEmpty_ ? 0 : spaces_, "");
}

} // namespace tool
