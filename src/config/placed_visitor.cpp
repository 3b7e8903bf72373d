#include <vorn/parsers/toml_places.h>

#include "placed_reading.h"

namespace vorn::parsers::toml
{

PlacedVisitor::~PlacedVisitor() = default;

PlacedVisitor& PlacedVisitor::operator=(const PlacedVisitor& other)
{
    if (this != &other)
    {
        last_ = other.place();
    }
    return *this;
}

Place PlacedVisitor::place() const noexcept
{
    return reading_ != nullptr ? reading_->place() : last_;
}

bool visitTomlTree(const std::string& text, PlacedVisitor& visitor)
{
    config::PlacedReading reading(text, visitor);
    ITomlTreeVisitor& calls = reading;
    const bool isAccepted = visitTomlTree(text, calls);
    reading.end();
    return isAccepted;
}

} // namespace vorn::parsers::toml
