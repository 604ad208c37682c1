// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/ConfigReadBack.h"

#include <ostream>

#include <gtest/gtest.h>

#include "agentctl/ConfigText.h"

namespace quillmark {

void PrintTo(const ConfigEntries& entries, std::ostream* out) {
  *out << "api_key " << testing::PrintToString(entries.apiKey) << ", server_url "
       << testing::PrintToString(entries.serverUrl);
}

namespace test {
namespace {

constexpr auto absent = std::nullopt;

ConfigEntries key(const std::string& value) { return {value, absent}; }
ConfigEntries url(const std::string& value) { return {absent, value}; }
const ConfigEntries none;

TEST(ReadBack, FindsWhatWasSaved) {
  EXPECT_EQ(readEntries(configText({.agentId = "id",
                                    .machineIdentifier = "host",
                                    .serverUrl = "https://server.example",
                                    .apiKey = "the-key",
                                    .home = "/Users/u"})),
            (ConfigEntries{"the-key", "https://server.example"}));
}

TEST(ReadBack, FindsNothingWithoutTheKeys) {
  EXPECT_EQ(readEntries(""), none);
  EXPECT_EQ(readEntries("\n\n\n"), none);
  EXPECT_EQ(readEntries("[agent]\nother = 1\n"), none);
}

TEST(ReadBack, CutsTheValueAtItsFirstEqualsSign) {
  EXPECT_EQ(readEntries("api_key = \"abc==\""), key("abc"));
  EXPECT_EQ(readEntries("server_url = \"https://s.example/x?a=b&c=d\""),
            url("https://s.example/x?a"));
  EXPECT_EQ(readEntries("api_key == \"abc\""), none);
}

TEST(ReadBack, ComparesOnlyTheStartOfALine) {
  EXPECT_EQ(readEntries("api_keys = \"k\""), key("k"));
  EXPECT_EQ(readEntries("api_key_of_another = \"k\""), key("k"));
  EXPECT_EQ(readEntries("server_url_old = \"u\""), url("u"));
  EXPECT_EQ(readEntries("api_key \"x\" = \"k\""), key("k"));
  EXPECT_EQ(readEntries("my_api_key = \"k\""), none);
  EXPECT_EQ(readEntries("API_KEY = \"k\""), none);
  EXPECT_EQ(readEntries("\"api_key\" = \"k\""), none);
}

TEST(ReadBack, SkipsComments) {
  EXPECT_EQ(readEntries("# api_key = \"k\"\n#api_key = \"k\"\n  #server_url = \"u\""), none);
}

TEST(ReadBack, KeepsACommentAfterAValue) {
  EXPECT_EQ(readEntries("api_key = \"k\" # mine"), key("k\" # mine"));
}

TEST(ReadBack, IgnoresPlaceholders) {
  for (const std::string value : {"your-api-key-here", "pending-registration"}) {
    EXPECT_EQ(readEntries("api_key = \"" + value + "\""), none);
    EXPECT_EQ(readEntries("api_key = '" + value + "'"), none);
    EXPECT_EQ(readEntries("api_key = " + value), none);
    EXPECT_EQ(readEntries("api_key = \"k\"\napi_key = \"" + value + "\""), key("k"));
    EXPECT_EQ(readEntries("api_key = \"" + value + "x\""), key(value + "x"));
    EXPECT_EQ(readEntries("server_url = \"" + value + "\""), url(value)) << "only as a key";
  }
  EXPECT_EQ(readEntries("api_key = \"Your-Api-Key-Here\""), key("Your-Api-Key-Here"));
}

TEST(ReadBack, IgnoresEmptyValues) {
  for (const std::string value : {"", " ", "\"\"", "''", "\" ", "\"'\"'", "  \"\"  "}) {
    EXPECT_EQ(readEntries("api_key =" + value), none) << value;
    EXPECT_EQ(readEntries("server_url =" + value), none) << value;
    EXPECT_EQ(readEntries("server_url = u\nserver_url =" + value), url("u")) << value;
  }
}

// A field needs seconds to show a URL of a megabyte.
TEST(ReadBack, IgnoresAUrlThatNoServerTakes) {
  const std::string longest(8000, 'u');
  EXPECT_EQ(readEntries("server_url = \"" + longest + "\""), url(longest));
  EXPECT_EQ(readEntries("server_url = u\nserver_url = \"" + longest + "u\""), url("u"));
  EXPECT_EQ(readEntries("api_key = \"" + longest + "u\""), key(longest + "u"));
}

TEST(ReadBack, IgnoresLinesWithoutAnEqualsSign) {
  EXPECT_EQ(readEntries("api_key\napi_key \"k\"\nserver_url: u"), none);
}

TEST(ReadBack, UsesTheLastLineOfEach) {
  EXPECT_EQ(readEntries("api_key=1\nserver_url=1\napi_key=2\nserver_url=2\napi_keys=3"),
            (ConfigEntries{"3", "2"}));
}

TEST(ReadBack, IgnoresSections) {
  EXPECT_EQ(readEntries("server_url = \"u\"\n[agent]\n[other]\napi_key = \"k\"\n"),
            (ConfigEntries{"k", "u"}));
}

TEST(ReadBack, DropsWhiteSpaceAndThenQuotesAtBothEnds) {
  EXPECT_EQ(readEntries("\t  api_key\t =\t  \"k\" \t"), key("k"));
  EXPECT_EQ(readEntries("api_key=k"), key("k"));
  EXPECT_EQ(readEntries("api_key = 'k'"), key("k"));
  EXPECT_EQ(readEntries("api_key = \"'\"k'\""), key("k"));
  EXPECT_EQ(readEntries("api_key = \"k"), key("k"));
  EXPECT_EQ(readEntries("api_key = \"it's \"k\" here\""), key("it's \"k\" here"));
  EXPECT_EQ(readEntries("api_key = \u00A0\"k\"\u3000"), key("k"));
}

TEST(ReadBack, KeepsWhiteSpaceWithinTheQuotes) {
  EXPECT_EQ(readEntries("api_key = \" k \""), key(" k "));
  EXPECT_EQ(readEntries("api_key = \" \""), key(" "));
}

// A carriage return is not trimmed as white space, so the quote before it is not at the
// end and stays.
TEST(ReadBack, KeepsACarriageReturnAndTheQuoteBeforeIt) {
  EXPECT_EQ(readEntries("api_key = \"k\"\r\nserver_url = \"u\"\r\n"),
            (ConfigEntries{"k\"\r", "u\"\r"}));
  EXPECT_EQ(readEntries("api_key = \"\"\r\n"), key("\r"));
  EXPECT_EQ(readEntries("a = 1\rapi_key = \"k\""), none) << "nor does it end a line";
}

TEST(ReadBack, ReadsALastLineWithoutALineFeed) {
  EXPECT_EQ(readEntries("[agent]\napi_key = k"), key("k"));
}

}  // namespace
}  // namespace test
}  // namespace quillmark
