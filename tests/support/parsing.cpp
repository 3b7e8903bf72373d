#include "parsing.h"

#include <gtest/gtest.h>

#include "tree_text.h"

#include "parser_pipeline.h"

namespace test
{

ParsedDocument parseDocument(const std::string& text)
{
    const ParserPipeline pipeline(text);
    const pANTLR3_BASE_RECOGNIZER parser = pipeline.recogniser();
    const pANTLR3_BASE_RECOGNIZER lexer = pipeline.lexer().recogniser();

    ParsedDocument parsed;
    collectErrors(parser, parsed.errors);
    collectErrors(lexer, parsed.lexerErrors);
    parsed.trees = treeText(pipeline.parser()->document(pipeline.parser()).tree);
    parsed.errorCount = parser->getNumberOfSyntaxErrors(parser);
    parsed.lexerErrorCount = lexer->getNumberOfSyntaxErrors(lexer);
    return parsed;
}

void expectParsed(const std::vector<AcceptedDocument>& documents)
{
    for (const AcceptedDocument& document : documents)
    {
        SCOPED_TRACE(testing::PrintToString(document.text));
        const ParsedDocument parsed = parseDocument(document.text);
        EXPECT_EQ(parsed.trees, document.trees);
        EXPECT_EQ(parsed.errors, ErrorKinds());
        EXPECT_EQ(parsed.errorCount, 0u);
        EXPECT_EQ(parsed.lexerErrors, ErrorKinds());
        EXPECT_EQ(parsed.lexerErrorCount, 0u);
    }
}

void expectRejected(const ErrorKinds& errors, const std::vector<std::string>& texts,
                    const ErrorKinds& lexerErrors)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const ParsedDocument parsed = parseDocument(text);
        EXPECT_EQ(parsed.errors, errors);
        EXPECT_EQ(parsed.errorCount, errors.size());
        EXPECT_EQ(parsed.lexerErrors, lexerErrors);
        EXPECT_EQ(parsed.lexerErrorCount, lexerErrors.size());
    }
}

} // namespace test
