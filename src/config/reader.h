// The visitor that fills a configuration.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>

#include "follower.h"
#include "navigation.h"
#include "scalar.h"

namespace vorn::parsers::toml::config
{

// Fills what a document says about, and says what is wrong with its values and keys.  Each document
// has a reader of its own; what they fill is the navigation's.
class Reader final : public ITomlTreeVisitor
{
public:
    // `noValues` are the scalars and keys that have no value, as the diagnosis tells them.
    Reader(std::string_view document, Navigation& navigation, const std::vector<Finding>& noValues);

    void beginDocument() override {}
    void endDocument() override {}
    void beginKeyValue() override;
    void endKeyValue() override {}
    void beginTable() override;
    void endTable() override;
    void beginArrayTable() override;
    void endArrayTable() override;
    void beginDottedKey() override {}
    void endDottedKey() override {}
    void visitBareKey(const char* text) override;
    void visitQuotedKey(const char* text) override;
    void beginArray() override;
    void endArray() override;
    void beginInlineTable() override;
    void endInlineTable() override;
    void visitBasicString(const char* text) override { string(text); }
    void visitMultilineBasicString(const char* text) override { string(text); }
    void visitLiteralString(const char* text) override { string(text); }
    void visitMultilineLiteralString(const char* text) override { string(text); }
    void visitInteger(const char* text) override { plain(ScalarKind::integer, text); }
    void visitFloat(const char* text) override { plain(ScalarKind::floating, text); }
    void visitBoolean(const char* text) override { plain(ScalarKind::boolean, text); }
    void visitOffsetDateTime(const char* text) override { plain(ScalarKind::dateTime, text); }
    void visitLocalDateTime(const char* text) override { plain(ScalarKind::dateTime, text); }
    void visitLocalDate(const char* text) override { plain(ScalarKind::date, text); }
    void visitLocalTime(const char* text) override { plain(ScalarKind::time, text); }

private:
    // What values are in: an array, or a table in which pairs are looked up.
    struct Frame
    {
        Position position;
        std::uint32_t list = none;
    };

    void beginHeader();
    void key(std::string_view name);
    void passPending();
    void string(const char* text);
    void plain(ScalarKind kind, const char* text);
    void scalar(const Scalar& scalar);
    Slot nextSlot();
    Spot spot() const { return navigation_.spotOf(follower_.position()); }
    void reportNoValue(const Slot& slot, const Scalar& scalar, std::string&& message);

    Follower follower_;
    Navigation& navigation_;
    const std::vector<Finding>& noValues_;
    std::vector<Frame> frames_;
    std::size_t ignored_ = 0; // how many arrays and inline tables deep nothing is looked at
    // The key that is being read: where it leads to, apart from its last part.
    Position position_;
    Key pending_;
    bool hasPending_ = false;
    std::string name_; // of a quoted key
};

} // namespace vorn::parsers::toml::config
