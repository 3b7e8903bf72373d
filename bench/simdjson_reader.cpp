#include "readers.h"

#include <simdjson.h>

#include <memory>
#include <stdexcept>

namespace bench
{

std::string simdjsonImplementation()
{
    return simdjson::get_active_implementation()->name();
}

// Its best case: the text is padded already, and the parser keeps its memory.
Reading simdjsonReading(const std::string& json)
{
    const auto parser = std::make_shared<simdjson::dom::parser>();
    const auto padded = std::make_shared<const simdjson::padded_string>(json);
    return [parser, padded]
    {
        const simdjson::error_code error = parser->parse(*padded).error();
        if (error != simdjson::SUCCESS)
        {
            throw std::runtime_error(simdjson::error_message(error));
        }
    };
}

} // namespace bench
