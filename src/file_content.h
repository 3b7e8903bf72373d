#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace vorn::parsers::toml
{

// The whole content of a file, or nothing if it cannot be opened or read to its end.
class FileContent
{
public:
    explicit FileContent(const char* path);
    FileContent(const FileContent&) = delete;
    FileContent& operator=(const FileContent&) = delete;
    ~FileContent() = default;

    bool isRead() const noexcept { return text_.data() != nullptr; }

    // Ends with a NUL, as that of a string does.  It lives as long as this object.
    std::string_view text() const noexcept { return text_; }

private:
    void readRest(int file);

    // Small files take neither memory of their own nor a look at their size.  Neither is
    // initialised: that would take as long as reading.
    char few_[2048];
    std::unique_ptr<char[]> many_;
    std::string_view text_;
};

} // namespace vorn::parsers::toml
