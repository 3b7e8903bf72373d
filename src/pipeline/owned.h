#pragma once

#include <antlr3.h>

#include <memory>

namespace vorn::parsers::toml
{

// Releases an object of the runtime by its own operation.
struct Release
{
    template <typename Object>
    void operator()(Object* object) const
    {
        object->free(object);
    }
    void operator()(pANTLR3_INPUT_STREAM input) const { input->close(input); }
};

// An object of the runtime that goes with its scope.
template <typename Object>
using Owned = std::unique_ptr<Object, Release>;

} // namespace vorn::parsers::toml
