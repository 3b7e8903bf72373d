// What the realistic client of the bench keeps.
#include <gtest/gtest.h>

#include "bench/documents.h"
#include "bench/settings.h"

#include <vorn/parsers/toml.h>

#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;

bench::Settings settingsOf(const std::string& text)
{
    bench::SettingsVisitor visitor;
    EXPECT_TRUE(toml::visitTomlTree(text, visitor));
    return visitor.settings();
}

// Of the bench's documents.
bench::Settings settingsOfDocument(const std::string& name)
{
    static const std::vector<bench::Document> documents = bench::documents();
    for (const bench::Document& document : documents)
    {
        if (document.name == name)
        {
            return settingsOf(document.text);
        }
    }
    ADD_FAILURE() << "there is no document " << name;
    return {};
}

} // namespace

TEST(BenchSettings, holdTheServices)
{
    const bench::Settings settings = settingsOfDocument("services/1KB");
    ASSERT_EQ(settings.services.size(), 2U);
    const bench::ServiceSettings& service = settings.services.back();
    EXPECT_EQ(service.name, "collector-1");
    EXPECT_EQ(service.command, "/usr/bin/collectd --config \"/etc/collectd.conf\"");
    EXPECT_TRUE(service.enabled);
    EXPECT_EQ(service.priority, 1);
    EXPECT_EQ(service.ports, (std::vector<std::int64_t>{8080, 8443, 9000}));
    EXPECT_EQ(service.timeout, 2.5);
    EXPECT_EQ(service.memory, "128M");
    EXPECT_EQ(service.files, 1024);
    EXPECT_EQ(service.started.offset, 0);
    EXPECT_EQ(service.policy, "on-failure");
    EXPECT_EQ(service.delays, (std::vector<double>{0.5, 1, 5, 30}));
}

TEST(BenchSettings, holdSomethingOfEachKindOfDocument)
{
    const bench::Settings sensors = settingsOfDocument("small-tables/1KB");
    ASSERT_FALSE(sensors.sensors.empty());
    EXPECT_EQ(sensors.sensors.back().unit, "celsius");
    EXPECT_EQ(sensors.sensors.back().offset, -0.25);
    EXPECT_TRUE(sensors.sensors.back().active);

    const bench::Settings entries = settingsOfDocument("dates/1KB");
    ASSERT_GT(entries.entries.size(), 1U);
    const bench::EntrySettings& entry = entries.entries[1];
    EXPECT_EQ(entry.changed.offset, -7 * 60);
    EXPECT_EQ(entry.from.time, (toml::Time{7, 32, 0, 0}));
    EXPECT_EQ(entry.until.time, (toml::Time{9, 15, 0, 0}));
    EXPECT_EQ(entry.zone, 1);

    EXPECT_EQ(settingsOfDocument("number-arrays/1KB").samples.size() % 70, 0U);
    EXPECT_EQ(settingsOfDocument("number-arrays/1KB").samples.at(1), 4729);
    EXPECT_EQ(settingsOfDocument("long-strings/1KB").texts.at(0).substr(0, 9), "the quick");
}

TEST(BenchSettings, skipWhatNobodyKnows)
{
    const bench::Settings settings = settingsOf("other = 1\nsamples-1 = ['x']\n[part-1]\n"
                                                "text-1 = 'y'\nlist = [1]\n[z]\ntext-2 = 'z'\n"
                                                "[[service]]\n\"name\" = 'n'\nlimits.cpu = 1.5\n");
    EXPECT_TRUE(settings.samples.empty());
    EXPECT_EQ(settings.texts, std::vector<std::string>{"y"});
    ASSERT_EQ(settings.services.size(), 1U);
    EXPECT_EQ(settings.services[0].name, "n");
}
