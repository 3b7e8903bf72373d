#pragma once

#include "document_generator.h"
#include "random.h"
#include "token_generator.h"

#include <cstdint>
#include <string>

namespace test
{

// Makes documents of 1 to 40 lines at random, of which some are mistaken: what the recognisers
// repair, what they skip, and where they go on afterwards.
class RecoveryDocumentGenerator
{
public:
    explicit RecoveryDocumentGenerator(std::uint64_t seed)
        : random_(seed), tokens_(random_), documents_(seed + 1)
    {
    }

    std::string next();

private:
    std::string validLine();
    std::string mistakenLine();
    std::string enclosedLines();

    Random random_;
    TokenGenerator tokens_;
    DocumentGenerator documents_;
};

} // namespace test
