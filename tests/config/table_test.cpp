#include "config/table.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace vorn::parsers::toml::config;

void addInteger(Table& table, const std::string& path)
{
    Entry entry;
    entry.path = path;
    entry.type = &typeOf<int>;
    addEntry(table, std::move(entry));
}

// A table with these keys.
std::shared_ptr<Table> tableOf(const std::vector<std::string>& paths)
{
    const std::shared_ptr<Table> table = makeTable(nullptr);
    for (const std::string& path : paths)
    {
        addInteger(*table, path);
    }
    return table;
}

std::string pathAt(const Table& table, const std::string& path)
{
    const std::uint32_t node = table.find(path);
    return node == none ? "none" : table.nodes[node].path;
}

} // namespace

TEST(Table, findsItsKeys)
{
    const auto table = tableOf({"port", "dns.timeout", "dns.search", "link.\"5 GHz\".on"});
    EXPECT_EQ(pathAt(*table, "port"), "port");
    EXPECT_EQ(pathAt(*table, "dns"), "dns");
    EXPECT_EQ(pathAt(*table, "dns.search"), "dns.search");
    EXPECT_EQ(pathAt(*table, "'dns'.\"timeout\""), "dns.timeout");
    EXPECT_EQ(pathAt(*table, "link.'5 GHz'.on"), "link.\"5 GHz\".on");
    EXPECT_EQ(pathAt(*table, "dns.timeouts"), "none");
    EXPECT_EQ(pathAt(*table, "search"), "none");
    EXPECT_EQ(pathAt(*table, "dns.search.a"), "none");
    EXPECT_EQ(pathAt(*table, "dns search"), "none");
    EXPECT_TRUE(table->mistakes.empty());
}

TEST(Table, hasEntriesOfItsKeys)
{
    const auto table = tableOf({"port", "dns.timeout"});
    EXPECT_EQ(table->entryOf(table->find("dns")), nullptr);
    EXPECT_EQ(table->entryOf(0), nullptr);
    ASSERT_NE(table->entryOf(table->find("dns.timeout")), nullptr);
    EXPECT_EQ(table->entryOf(table->find("dns.timeout"))->path, "dns.timeout");
    EXPECT_EQ(table->nodes[table->find("dns.timeout")].parent, table->find("dns"));
    EXPECT_EQ(table->nodes[table->find("dns")].parent, 0U);
}

TEST(Table, tellsNamesApartThatLookAlike)
{
    // The same first, middle and last letters, and length.
    EXPECT_EQ(markOf("abcde"), markOf("azcye"));
    EXPECT_NE(markOf("abcde"), markOf("abxde"));
    EXPECT_EQ(markOf(""), 0U);
    const auto table = tableOf({"abcde", "azcye", "\"\"", "a"});
    EXPECT_EQ(table->child(0, "abcde"), table->find("abcde"));
    EXPECT_EQ(table->child(0, "azcye"), table->find("azcye"));
    EXPECT_EQ(table->child(0, "axcxe"), none);
    EXPECT_EQ(pathAt(*table, "\"\""), "\"\"");
    EXPECT_EQ(table->child(0, "b"), none);
}

TEST(Table, remembersTheMistakesOfItsAuthor)
{
    const auto table = tableOf({"a.b", "a", "a.b", "a.b.c", "a b", ""});
    EXPECT_EQ(mistakesOf(*table),
              (std::vector<std::string>{"a has two meanings", "a.b has two meanings",
                                        "a.b.c has two meanings", "'a b' is not a key",
                                        "'' is not a key"}));
    EXPECT_EQ(table->entries.size(), 1U);
}

TEST(Table, hasTheMistakesOfTablesWithin)
{
    const auto inner = tableOf({"a b"});
    addCheck(*inner, [](const void*) { return std::string(); }, {"c", "d"});
    const auto table = tableOf({"c"});
    addCheck(*table, [](const void*) { return std::string(); }, {"c"});
    Entry entry;
    entry.path = "inner";
    entry.type = &typeOf<Table>;
    entry.table = inner;
    addEntry(*table, std::move(entry));
    EXPECT_EQ(mistakesOf(*table),
              (std::vector<std::string>{"'a b' is not a key", "c has a check, but is not a key",
                                        "d has a check, but is not a key"}));
}

TEST(Table, hasChoicesOfTheTypeOfTheMember)
{
    enum class One
    {
        value
    };
    enum class Other
    {
        value
    };
    const auto table = tableOf({});
    Entry entry;
    entry.path = "a";
    entry.type = &typeOf<std::vector<std::optional<One>>>;
    entry.choices = {{"value", One::value}};
    addEntry(*table, Entry(entry));
    EXPECT_TRUE(table->mistakes.empty());
    entry.path = "b";
    entry.choices.emplace_back("other", Other::value);
    addEntry(*table, std::move(entry));
    EXPECT_EQ(table->mistakes, std::vector<std::string>{"the choices of b are of another type"});
}

TEST(Table, saysWhatBecomesOfUnknownKeys)
{
    const auto table = tableOf({});
    EXPECT_FALSE(table->unknown.has_value());
    setUnknownKeys(*table, vorn::parsers::toml::Unknown::warning);
    EXPECT_EQ(table->unknown, vorn::parsers::toml::Unknown::warning);
}
