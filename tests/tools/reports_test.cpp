// The reports of check for programs: related places.
#include "json_report.h"
#include "sarif_report.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using tool::Json;

tool::CheckedFile fileWithRelatedPlace()
{
    tool::Finding finding;
    finding.begin = 6;
    finding.end = 7;
    finding.line = 2;
    finding.endLine = 2;
    finding.endColumn = 2;
    finding.code = "twice";
    finding.message = "defined twice";
    vorn::parsers::toml::RelatedPlace first;
    first.end = 1;
    first.endColumn = 2;
    first.message = "the first time";
    finding.related.push_back(first);
    tool::CheckedFile file;
    file.name = "a.toml";
    file.text = "a = 1\na = 2\n";
    file.examination.status = tool::rejected;
    file.examination.findings.push_back(finding);
    return file;
}

TEST(Reports, HaveRelatedPlacesInJson)
{
    const std::string output = tool::JsonReport().of(fileWithRelatedPlace()).output;
    EXPECT_EQ(Json::parse(output)["findings"][0]["related"],
              Json::parse(R"([{"line": 1, "column": 1, "endLine": 1, "endColumn": 2,
                               "message": "the first time"}])"));
}

TEST(Reports, HaveRelatedPlacesInSarif)
{
    testing::internal::CaptureStdout();
    tool::SarifReport report;
    const tool::FileReport file = report.of(fileWithRelatedPlace());
    report.print(file);
    report.end();
    const Json log = Json::parse(testing::internal::GetCapturedStdout());
    const Json related = Json::parse(R"([{
        "physicalLocation": {
            "artifactLocation": {"uri": "a.toml"},
            "region": {"startLine": 1, "startColumn": 1, "endLine": 1, "endColumn": 2,
                       "byteOffset": 0, "byteLength": 1}},
        "message": {"text": "the first time"}}])");
    EXPECT_EQ(log["runs"][0]["results"][0]["relatedLocations"], related) << log;
    EXPECT_EQ(log["runs"][0]["results"][0]["message"]["text"], "defined twice");
}

} // namespace
