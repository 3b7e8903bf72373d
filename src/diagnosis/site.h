#pragma once

#include <string_view>

#include "document_token.h"
#include "place.h"

namespace vorn::parsers::toml::diagnosis
{

// A token that does not fit, and what is around it.
struct Site
{
    std::string_view text; // the whole document
    DocumentToken before;  // endOfInput at the start of the document
    DocumentToken found;   // endOfInput at its end
    DocumentToken after;   // likewise
    Place place;
    bool isOpeningClosed; // of the place, if there is one

    std::string_view textOf(const DocumentToken& token) const
    {
        return text.substr(token.begin, token.end - token.begin);
    }
    std::string_view foundText() const { return textOf(found); }
};

} // namespace vorn::parsers::toml::diagnosis
