// What documents mean, to compare them: keys and values in order, without the forms in which
// they are written.
#pragma once

#include <vorn/parsers/toml.h>

#include <string>
#include <string_view>
#include <vector>

#include "piece.h"

namespace tool::fixing
{

// What the document means that consists of these pieces.
std::string meaningOf(std::string_view text, const std::vector<Piece>& pieces);

// What a document means to the library, once it has been read.
class MeaningVisitor : public vorn::parsers::toml::TomlTreeVisitor
{
public:
    const std::string& meaning() const { return meaning_; }

    void beginTable() override;
    void endTable() override;
    void beginArrayTable() override;
    void endArrayTable() override;
    void visitBareKey(const char* text) override;
    void visitQuotedKey(const char* text) override;
    void beginArray() override;
    void endArray() override;
    void beginInlineTable() override;
    void endInlineTable() override;
    void visitBasicString(const char* text) override;
    void visitMultilineBasicString(const char* text) override;
    void visitLiteralString(const char* text) override;
    void visitMultilineLiteralString(const char* text) override;
    void visitInteger(const char* text) override;
    void visitFloat(const char* text) override;
    void visitBoolean(const char* text) override;
    void visitOffsetDateTime(const char* text) override;
    void visitLocalDateTime(const char* text) override;
    void visitLocalDate(const char* text) override;
    void visitLocalTime(const char* text) override;

private:
    std::string meaning_;
};

} // namespace tool::fixing
