// Writes what the fuzzer starts from: seeds DIRECTORY.  In its `documents` are those that the
// tests of the library read, the examples and some made at random; in `texts` all texts that
// a visitor gets for them.
#include "differential/document_generator.h"
#include "support/direct_reading.h"
#include "support/event_recorder.h"
#include "support/example_files.h"
#include "support/file_content.h"
#include "support/log_recorder.h"
#include "support/refused_documents.h"
#include "support/stderr_capture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

using vorn::parsers::toml::ITomlTreeVisitor;

// The linker gives these names: callers reach the one that wraps.
bool realVisit(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__real_" VISIT_TOML_TREE);
bool wrappedVisit(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__wrap_" VISIT_TOML_TREE);

namespace
{

constexpr std::size_t mostBytes = 2048;
constexpr int generatedDocuments = 1000;

std::filesystem::path directory;

// Files of the same content have the same name.
void write(const char* kind, const std::string& content)
{
    const std::string name = std::to_string(std::hash<std::string>()(content));
    std::ofstream file(directory / kind / name, std::ios::binary);
    if (!(file << content).flush())
    {
        throw std::runtime_error("a seed cannot be written");
    }
}

void writeSeeds(const std::string& document)
{
    if (document.size() > mostBytes)
    {
        return;
    }
    write("documents", document);
    test::EventRecorder visitor;
    const test::StderrCapture displays;
    realVisit(document, visitor);
    for (const std::string& event : visitor.events())
    {
        const std::size_t blank = event.find(' ');
        if (blank != std::string::npos)
        {
            write("texts", event.substr(blank + 1));
        }
    }
}

void writeOtherSeeds()
{
    for (const std::string& name : test::exampleNames())
    {
        writeSeeds(test::fileContent(test::examplePath(name)));
    }
    for (const test::RefusedDocuments& refused : test::refusedDocuments)
    {
        for (const std::string& text : refused.texts)
        {
            writeSeeds(text);
        }
    }
    test::DocumentGenerator generator(1);
    for (int count = 0; count < generatedDocuments; ++count)
    {
        writeSeeds(generator.next());
    }
}

} // namespace

bool wrappedVisit(const std::string& text, ITomlTreeVisitor& visitor)
{
    writeSeeds(text);
    {
        // Forgets the lines that were logged.
        const test::LogRecorder log;
    }
    return realVisit(text, visitor);
}

int main(int words, char** word)
{
    testing::InitGoogleTest(&words, word);
    if (words != 2)
    {
        std::fputs("Usage: seeds DIRECTORY\n", stderr);
        return 2;
    }
    directory = word[1];
    std::filesystem::create_directories(directory / "documents");
    std::filesystem::create_directories(directory / "texts");
    const test::DirectReadingOn on;
    writeOtherSeeds();
    return RUN_ALL_TESTS();
}
