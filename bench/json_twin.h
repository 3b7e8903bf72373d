// The same content as JSON, for parsers of JSON.
#pragma once

#include <string>

namespace bench
{

// The JSON of a valid TOML document: the same keys in the same order, the same nesting and values,
// without blanks.  Dates and times become strings.  Throws if the document is rejected.
std::string jsonTwin(const std::string& document);

} // namespace bench
