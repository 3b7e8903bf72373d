#include "tree_visitor.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tool
{
namespace
{

struct Kind
{
    std::string_view operation; // after "begin" or "visit"
    const char* name;           // cppcheck-suppress unusedStructMember
};

constexpr std::array<Kind, 21> kinds = {{{"Document", "document"},
                                         {"KeyValue", "pair"},
                                         {"Table", "header"},
                                         {"ArrayTable", "header of an array of tables"},
                                         {"DottedKey", "dotted key"},
                                         {"Array", "array"},
                                         {"InlineTable", "inline table"},
                                         {"BareKey", "bare key"},
                                         {"QuotedKey", "quoted key"},
                                         {"BasicString", "string"},
                                         {"MultilineBasicString", "multi-line string"},
                                         {"LiteralString", "literal string"},
                                         {"MultilineLiteralString", "multi-line literal string"},
                                         {"Integer", "integer"},
                                         {"Float", "float"},
                                         {"Boolean", "boolean"},
                                         {"OffsetDateTime", "offset date-time"},
                                         {"LocalDateTime", "local date-time"},
                                         {"LocalDate", "date"},
                                         {"LocalTime", "time"},
                                         {"", "node"}}};

constexpr std::string_view beginning = "begin";

const char* nameOf(std::string_view operation)
{
    const std::string_view rest = operation.substr(beginning.size());
    return std::find_if(kinds.begin(), kinds.end() - 1,
                        [rest](const Kind& kind) { return kind.operation == rest; })
        ->name;
}

} // namespace

void TreeVisitor::event(const char* operation)
{
    if (std::string_view(operation).substr(0, beginning.size()) == beginning)
    {
        beginNode(nameOf(operation));
    }
    else
    {
        endNode();
    }
}

void TreeVisitor::event(const char* operation, const char* text)
{
    leaf(nameOf(operation), text);
}

} // namespace tool
