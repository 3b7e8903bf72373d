#include <gtest/gtest.h>
#include <vorn/parsers/toml_config.h>

#include <array>
#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "listener_schema.h"

using namespace vorn::parsers::toml;

TEST(Describe, WritesAReferenceInMarkdown)
{
    EXPECT_EQ(describe(listening::configSchema()), R"(# Configuration

| Key | Value | Default | Description |
|---|---|---|---|
| `name` | a string | required |  |
| `limits` | a table of integers |  |  |
| `dns.timeout` | a number, 0.1 to 60 | `2.5` |  |
| `dns.search` | an array of strings |  |  |
| `log.level` | a string, one of "debug", "info", "error" | `"info"` |  |

## `[[listener]]`

Who is listened to.
In order.

| Key | Value | Default | Description |
|---|---|---|---|
| `address` | a string | `"0.0.0.0"` |  |
| `port` | an integer, 1 to 65535 | required | The port that it listens on. |
| `certificate` | a string |  |  |
)");
}

TEST(Describe, WritesADocumentWithTheDefaults)
{
    EXPECT_EQ(describe(listening::configSchema(), Format::toml), R"(# a string, required
# name = ""

# a table of integers
# limits = {NAME = 0}

[dns]
# a number, 0.1 to 60
timeout = 2.5

# an array of strings
# search = [""]

[log]
# a string, one of "debug", "info", "error"
level = "info"

# Who is listened to.
# In order.
# an array of tables
# [[listener]]
# # a string
# address = "0.0.0.0"
#
# # The port that it listens on.
# # an integer, 1 to 65535, required
# port = 1
#
# # a string
# # certificate = ""
)");
}

TEST(Describe, WritesAJsonSchema)
{
    EXPECT_EQ(describe(listening::configSchema(), Format::jsonSchema), R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "type": "object",
  "properties": {
    "name": {
      "type": "string"
    },
    "dns": {
      "type": "object",
      "properties": {
        "timeout": {
          "type": "number",
          "minimum": 0.1,
          "maximum": 60,
          "default": 2.5
        },
        "search": {
          "type": "array",
          "items": {
            "type": "string"
          },
          "default": []
        }
      },
      "additionalProperties": false
    },
    "log": {
      "type": "object",
      "properties": {
        "level": {
          "type": "string",
          "enum": ["debug", "info", "error"],
          "default": "info"
        }
      },
      "additionalProperties": false
    },
    "limits": {
      "type": "object",
      "additionalProperties": {
        "type": "integer",
        "minimum": -9223372036854775808,
        "maximum": 9223372036854775807
      },
      "default": {}
    },
    "listener": {
      "description": "Who is listened to.\nIn order.",
      "type": "array",
      "items": {
        "type": "object",
        "properties": {
          "address": {
            "type": "string",
            "default": "0.0.0.0"
          },
          "port": {
            "description": "The port that it listens on.",
            "type": "integer",
            "minimum": 1,
            "maximum": 65535
          },
          "certificate": {
            "type": "string"
          }
        },
        "required": ["port"],
        "additionalProperties": false
      },
      "default": []
    }
  },
  "required": ["name"],
  "additionalProperties": false
}
)");
}

TEST(Describe, DescribesNothing)
{
    struct Empty
    {
    };
    EXPECT_EQ(describe(Schema<Empty>()), "# Configuration\n");
    EXPECT_EQ(describe(Schema<Empty>(), Format::toml), "");
    EXPECT_EQ(describe(Schema<Empty>(), Format::jsonSchema), R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "type": "object",
  "properties": {},
  "additionalProperties": false
}
)");
}

namespace
{

struct Item
{
    int port = 0;
};

struct Odd
{
    std::string text = "a`b|c";
    std::vector<Item> list{Item{}};
};

Schema<Odd> oddSchema()
{
    return Schema<Odd>()
        .optional("a.\"|`\\u0001\\U0001F600\"", &Odd::text, "One|two\r\n\"\\\xf0\x9f\x98\x80\xff.")
        .tables("list", &Odd::list, Schema<Item>().optional("port", &Item::port));
}

} // namespace

TEST(DescribeInMarkdown, HasTheDefaultsOfStructsWithin)
{
    struct Outer
    {
        Item item{80};
        std::map<std::string, Item> items;
        std::array<int, 1> one{5};
    };
    const auto item = Schema<Item>().optional("port", &Item::port);
    const auto schema = Schema<Outer>()
                            .table("item", &Outer::item, item, "The one.")
                            .tablesByName("items", &Outer::items, item)
                            .optional("one", &Outer::one);
    EXPECT_EQ(describe(schema), R"(# Configuration

| Key | Value | Default | Description |
|---|---|---|---|
| `one` | an array of integers, 1 element, each -2147483648 to 2147483647 | `[5]` |  |

## `[item]`

The one.

| Key | Value | Default | Description |
|---|---|---|---|
| `port` | an integer, -2147483648 to 2147483647 | `80` |  |

## `[items.NAME]`

| Key | Value | Default | Description |
|---|---|---|---|
| `port` | an integer, -2147483648 to 2147483647 | `0` |  |
)");
}

TEST(DescribeInMarkdown, EscapesWhatEndsACell)
{
    const std::string text = describe(oddSchema());
    EXPECT_NE(text.find("\n| `` a.\"\\|`\\u0001\xf0\x9f\x98\x80\" `` | a string | "
                        "`` \"a`b\\|c\" `` | One\\|two  \"\\\xf0\x9f\x98\x80\xff. |\n"),
              std::string::npos)
        << text;
}

TEST(DescribeInJsonSchema, IsInAscii)
{
    const std::string text = describe(oddSchema(), Format::jsonSchema);
    EXPECT_NE(text.find("\"|`\\u0001\\uD83D\\uDE00\": {"), std::string::npos) << text;
    EXPECT_NE(text.find("\"One|two\\r\\n\\\"\\\\\\uD83D\\uDE00\\uFFFD.\""), std::string::npos)
        << text;
    for (const char c : text)
    {
        EXPECT_TRUE(c == '\n' || (c >= ' ' && c <= '~')) << text;
    }
}

TEST(DescribeInJsonSchema, HasNoLimitThatIsInfinite)
{
    struct Ratio
    {
        double ratio = 1;
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto schema = Schema<Ratio>().optional("ratio", &Ratio::ratio, range(0.5, infinity));
    const std::string text = describe(schema, Format::jsonSchema);
    EXPECT_NE(text.find("\"minimum\": 0.5"), std::string::npos) << text;
    EXPECT_EQ(text.find("\"maximum\""), std::string::npos) << text;
}

TEST(DescribeInJsonSchema, LetsUnknownKeysBeWhereTheSchemaDoes)
{
    const auto unknownOf = [](Unknown unknown)
    {
        const auto schema =
            Schema<Odd>()
                .optional("a.text", &Odd::text)
                .tables("list", &Odd::list, Schema<Item>().optional("port", &Item::port))
                .unknownKeys(unknown);
        const std::string text = describe(schema, Format::jsonSchema);
        std::string values;
        const std::string name = "\"additionalProperties\": ";
        for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos;)
        {
            at += name.size();
            values += text[at];
        }
        return values;
    };
    EXPECT_EQ(unknownOf(Unknown::problem), "fff");
    EXPECT_EQ(unknownOf(Unknown::warning), "ttt");
    EXPECT_EQ(unknownOf(Unknown::ignored), "ttt");
}
