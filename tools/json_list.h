#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace tool
{

using Json = nlohmann::ordered_json;

// A value of JSON in ASCII, on lines that are indented by so many spaces.
std::string indented(const Json& value, int spaces);

// Prints a JSON array on standard output, element by element.
class JsonList
{
public:
    // The line of the closing bracket is indented by so many spaces.
    explicit JsonList(int spaces) : spaces_(spaces) {}

    // The elements have been indented by two more; empty texts are passed over.
    void print(const std::string& elements);

    // The closing bracket, without a line feed.
    void end() const;

    // What belongs between two elements.
    static const char* separator() { return ",\n"; }

private:
    int spaces_;
    bool isEmpty_ = true;
};

} // namespace tool
