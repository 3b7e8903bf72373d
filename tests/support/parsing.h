#pragma once

#include <string>
#include <vector>

#include "support/recognition_errors.h"

namespace test
{

// What the parser makes of a document.
struct ParsedDocument
{
    std::string trees; // as treeText() writes them
    ErrorKinds errors;
    unsigned errorCount = 0;
    ErrorKinds lexerErrors;
    unsigned lexerErrorCount = 0;
};

ParsedDocument parseDocument(const std::string& text);

struct AcceptedDocument
{
    std::string text;
    std::string trees;
};

// Expects the trees, and no error of the parser or of the lexer.
void expectParsed(const std::vector<AcceptedDocument>& documents);

// Expects the errors of each document, in order and no others, each displayed and counted once.
void expectRejected(const ErrorKinds& errors, const std::vector<std::string>& texts,
                    const ErrorKinds& lexerErrors = {});

// The kind of error for a place where no alternative of a choice fits.
const std::string noAlternative = "no viable alternative";

// The kinds of error for a place where one certain token is due.  The runtime takes one
// token too many, or one that is missing, in its stride.
const std::string notRepaired = "recognition";
const std::string unwanted = "unwanted token";
const std::string missing = "missing token";

} // namespace test
