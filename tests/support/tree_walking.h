#pragma once

#include <string>
#include <vector>

#include "support/event_recorder.h"
#include "support/recognition_errors.h"

namespace test
{

// What the tree parser makes of a list of trees.
struct TreeWalk
{
    bool result = false;
    Events events;
    ErrorKinds errors;
    unsigned errorCount = 0;
};

// Walks the trees that the notation of tree_text.h describes.
TreeWalk walkTrees(const std::string& trees);

struct TreeCase
{
    std::string trees;
    Events events;
};

// Expects the calls and true, without an error.
void expectWalked(const std::vector<TreeCase>& cases);

// Expects the calls and false, without an error: what breaks off a walk is not reported.
void expectBrokenOff(const std::vector<TreeCase>& cases);

struct ReportedCase
{
    std::string trees;
    Events events;
    ErrorKinds errors;
    bool result = true;
};

// Expects the calls, the result and the errors, each displayed and counted once.
void expectReported(const std::vector<ReportedCase>& cases);

// Expects the calls, the errors and true for the tree as the value of a pair, with and
// without a pair after it.
void expectReportedValue(const std::string& value, const Events& events, const ErrorKinds& errors);

// The same for the tree as the key of a pair and of both kinds of headers, and as the
// first part of a dotted key.
void expectReportedKey(const std::string& key, const Events& events, const ErrorKinds& errors);

} // namespace test
