#include "readers.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <memory>
#include <stdexcept>

namespace bench
{

// Events to a handler that does nothing; the reader keeps its memory.
Reading rapidJsonReading(const std::string& json)
{
    const auto reader = std::make_shared<rapidjson::Reader>();
    return [reader, &json]
    {
        rapidjson::StringStream stream(json.c_str());
        rapidjson::BaseReaderHandler<> handler;
        const rapidjson::ParseResult result =
            reader->Parse<rapidjson::kParseDefaultFlags>(stream, handler);
        if (!result)
        {
            throw std::runtime_error(rapidjson::GetParseError_En(result.Code()));
        }
    };
}

} // namespace bench
