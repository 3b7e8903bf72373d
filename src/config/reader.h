// The visitor that fills a configuration.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <vorn/parsers/toml.h>

#include "findings.h"
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
    Reader(const std::string& document, Navigation& navigation, StrictFindings& strict);

    // Whether it has not been called: the document is not accepted.
    bool isUntouched() const { return isUntouched_; }

    void beginDocument() override { isUntouched_ = false; }
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
    StrictFindings& strict_;
    std::vector<Frame> frames_;
    std::size_t ignored_ = 0; // how many arrays and inline tables deep nothing is looked at
    // The key that is being read: where it leads to, apart from its last part.
    Position position_;
    How way_ = How::dottedKey;
    Key pending_;
    bool hasPending_ = false;
    bool isUntouched_ = true;
    std::string name_; // of a quoted key
};

} // namespace vorn::parsers::toml::config
