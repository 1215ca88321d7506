// SPDX-License-Identifier: MIT
#include "platform/json/json_writer.h"

#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace rbt {
namespace {

using Layout = JsonWriter::Layout;

TEST(JsonWriter, PutsTheOutermostEntriesOnLinesOfTheirOwnAndTheRestOnTheirs) {
  JsonWriter json(Layout::entry_a_line);
  json.BeginObject().Field("kind", "bulk").Name("cells").BeginArray().Row(0, 5, 2).Row(1, 6, 3).EndArray();
  json.Name("options").BeginObject().Field("kerf", 3).Field("mix", true).EndObject().EndObject();
  EXPECT_EQ(json.Text(),
            "{\n  \"kind\": \"bulk\",\n  \"cells\": [[0, 5, 2], [1, 6, 3]],\n"
            "  \"options\": { \"kerf\": 3, \"mix\": true }\n}\n");
}

TEST(JsonWriter, PutsAListOfObjectsOnALineEach) {
  JsonWriter json(Layout::entry_a_line);
  json.BeginArray().BeginObject().Field("name", "a").EndObject().BeginObject().EndObject().EndArray();
  EXPECT_EQ(json.Text(), "[\n  { \"name\": \"a\" },\n  {}\n]\n");
}

TEST(JsonWriter, PutsEverythingOnOneLine) {
  JsonWriter json(Layout::one_line);
  json.BeginObject().Field("a", 1).Name("b").BeginArray().EndArray().EndObject();
  EXPECT_EQ(json.Text(), "{ \"a\": 1, \"b\": [] }\n");
}

TEST(JsonWriter, LeavesNothingBetweenTheBracketsOfWhatIsEmpty) {
  for (const Layout layout : {Layout::entry_a_line, Layout::one_line}) {
    EXPECT_EQ(JsonWriter(layout).BeginArray().EndArray().Text(), "[]\n");
    EXPECT_EQ(JsonWriter(layout).BeginObject().EndObject().Text(), "{}\n");
  }
}

TEST(JsonWriter, WritesNumbersSoThatTheyComeBackAsTheyWere) {
  JsonWriter json(Layout::one_line);
  const double third = 1.0 / 3.0;
  json.BeginArray().Value(third).Value(1e300).Value(-0.5).Value(std::int64_t{1} << 53).EndArray();
  const auto read = nlohmann::json::parse(json.Text());
  EXPECT_EQ(read[0].get<double>(), third);
  EXPECT_EQ(read[1].get<double>(), 1e300);
  EXPECT_EQ(read[2].get<double>(), -0.5);
  EXPECT_EQ(read[3].get<std::int64_t>(), std::int64_t{1} << 53);
}

TEST(JsonWriter, WritesCurrencyWithFourDecimalsAtMost) {
  JsonWriter json(Layout::one_line);
  json.Row(Currency::FromInteger(3), Currency::FromDouble(0.0001), Currency::FromDouble(-12.5));
  EXPECT_EQ(json.Text(), "[3, 0.0001, -12.5]\n");
}

TEST(JsonWriter, EscapesTextsAndNames) {
  JsonWriter json(Layout::one_line);
  json.BeginObject().Field("a\"b", "太さ\n\\\x01").Name("n").Null().EndObject();
  EXPECT_EQ(json.Text(), "{ \"a\\\"b\": \"太さ\\n\\\\\\u0001\", \"n\": null }\n");
}

TEST(JsonWriter, RefusesCallsThatMakeNoJson) {
  const auto fresh = [] { return JsonWriter(Layout::one_line); };
  EXPECT_THROW(fresh().Name("a"), std::logic_error);
  EXPECT_THROW(fresh().EndObject(), std::logic_error);
  EXPECT_THROW(fresh().Text(), std::logic_error);
  EXPECT_THROW(fresh().BeginObject().Text(), std::logic_error);
  EXPECT_THROW(fresh().BeginObject().Value(1), std::logic_error) << "without a name";
  EXPECT_THROW(fresh().BeginObject().Name("a").EndObject(), std::logic_error) << "without its value";
  EXPECT_THROW(fresh().BeginObject().Name("a").Name("b"), std::logic_error);
  EXPECT_THROW(fresh().BeginArray().Name("a"), std::logic_error);
  EXPECT_THROW(fresh().BeginArray().EndObject(), std::logic_error);
  EXPECT_THROW(fresh().Value(1).Value(2), std::logic_error) << "two texts";
}

}  // namespace
}  // namespace rbt
