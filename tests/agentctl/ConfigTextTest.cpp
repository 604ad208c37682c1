// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/ConfigText.h"

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

// The complete text as it is on the disk, not assembled as the code does it.
constexpr auto expected = R"([agent]
agent_id = "macos-host-0123ABCD"
machine_identifier = "host"
server_url = "https://server.example:8443/x"
api_key = "the-key"
dev_mode = false

[telemetry]
enabled = true
batch_size = 100
batch_interval_seconds = 30
collect_processes = true
collect_network = true
collect_services = true
collect_logs = true

[detection]
enabled = true
signature_enabled = true
heuristic_enabled = true
rule_enabled = true
anomaly_enabled = true

[protection]
enabled = true
auto_quarantine = true
auto_terminate = false
auto_block_network = false
quarantine_path = "/Users/u/.quillmark/quarantine"

[av]
enabled = true
signature_path = "/Users/u/.quillmark/signatures"
update_interval_seconds = 3600
heuristic_enabled = true

[logging]
level = "info"
file_path = "/Users/u/.quillmark/logs/agent.log"
audit_path = "/Users/u/.quillmark/logs/audit.log")";

TEST(ConfigText, IsExactlyThisText) {
  EXPECT_EQ(configText({.agentId = "macos-host-0123ABCD",
                        .machineIdentifier = "host",
                        .serverUrl = "https://server.example:8443/x",
                        .apiKey = "the-key",
                        .home = "/Users/u"}),
            expected);
}

TEST(ConfigText, Has750CharactersAroundTheValues) { EXPECT_EQ(configText({}).size(), 750U); }

TEST(ConfigText, EndsWithoutALineFeed) { EXPECT_TRUE(configText({}).ends_with("audit.log\"")); }

TEST(ConfigText, ContainsValuesUnchanged) {
  for (const std::string value : {"", " around ", "a\"b", "back\\slash", "two\nlines", "cr\r\n",
                                  "tab\t", "caf\u00E9 \U0001F600", "a = b # c", "[agent]"}) {
    const auto text = configText({.agentId = value,
                                  .machineIdentifier = value,
                                  .serverUrl = value,
                                  .apiKey = value,
                                  .home = value});
    EXPECT_TRUE(text.starts_with("[agent]\nagent_id = \"" + value + "\"\nmachine_identifier = \"" +
                                 value + "\"\nserver_url = \"" + value + "\"\napi_key = \"" +
                                 value + "\"\ndev_mode = false\n\n[telemetry]\n"))
        << text;
    EXPECT_TRUE(text.ends_with("file_path = \"" + value +
                               "/.quillmark/logs/agent.log\"\naudit_path = \"" + value +
                               "/.quillmark/logs/audit.log\""))
        << text;
    EXPECT_EQ(text.size(), 750 + 8 * value.size());
  }
}

TEST(ConfigText, ContainsNulCharacters) {
  const std::string key("a\0b", 3);
  EXPECT_NE(
      configText(
          {.agentId = {}, .machineIdentifier = {}, .serverUrl = {}, .apiKey = key, .home = {}})
          .find("api_key = \"" + key + "\""),
      std::string::npos);
}

}  // namespace
}  // namespace quillmark::test
