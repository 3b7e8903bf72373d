// Samples of documents with mistakes: alone, among valid lines, and long ones.
#pragma once

#include <string>
#include <vector>

#include "support/damaged_documents.h"
#include "support/refused_documents.h"

namespace test
{

inline std::vector<std::string> mistakenSamples()
{
    std::vector<std::string> texts = damagedDocuments;
    for (const RefusedDocuments& refused : refusedDocuments)
    {
        for (const std::string& text : refused.texts)
        {
            texts.push_back(text);
            texts.push_back("[t]\n" + text + "b = 2\n");
            texts.push_back("a = {}\n" + text + "c 1\n" + text);
        }
    }
    return texts;
}

} // namespace test
