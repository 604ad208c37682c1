// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AgentConfig.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

std::string failureOf(const std::string& path) {
  const auto config = loadConfig({path});
  return config ? "no failure" : config.error().text;
}

TEST(ConfigPaths, NameTheHomeDirectoryFirst) {
  EXPECT_EQ(
      configPaths("/home/ann"),
      (std::vector<std::string>{"/home/ann/.config/quillmark/config.toml",
                                "/home/ann/.quillmark/config.toml", "/etc/quillmark/config.toml"}));
  EXPECT_EQ(configPaths(""), std::vector<std::string>{"/etc/quillmark/config.toml"});
}

TEST(LoadConfig, HasDefaultsWithoutAFile) {
  const FixtureTree tree;
  tree.write("file", "");
  const auto config = loadConfig({tree.path("missing"), tree.path("file/config.toml")});
  ASSERT_TRUE(config);
  EXPECT_TRUE(config->detection);
  EXPECT_FALSE(config->protection);
  EXPECT_TRUE(config->collectNetwork);
  EXPECT_TRUE(config->collectServices);
}

TEST(LoadConfig, ReadsItsFourKeys) {
  const FixtureTree tree;
  const auto config =
      loadConfig({tree.write("config.toml",
                             "[agent]\nserver_url = \"https://x\"\n"
                             "[telemetry]\nenabled = true\ncollect_network = false\n"
                             "collect_services = false\n"
                             "[detection]\nenabled = false\n"
                             "[protection]\nenabled = true\n")});
  ASSERT_TRUE(config);
  EXPECT_FALSE(config->detection);
  EXPECT_TRUE(config->protection);
  EXPECT_FALSE(config->collectNetwork);
  EXPECT_FALSE(config->collectServices);
}

TEST(LoadConfig, ReadsOnlyTheFirstFileThatExists) {
  const FixtureTree tree;
  const auto first = tree.write("first", "[protection]\nenabled = true\n");
  const auto second = tree.write("second", "this is no TOML");
  const auto config = loadConfig({tree.path("missing"), first, second});
  ASSERT_TRUE(config);
  EXPECT_TRUE(config->protection);
}

TEST(LoadConfig, IgnoresKeysForTheProductsAgent) {
  const FixtureTree tree;
  EXPECT_EQ(*loadConfig({tree.write("a", "detection = 5\n[telemetry]\nbatch_size = \"x\"\n")}),
            AgentConfig{});
  EXPECT_EQ(*loadConfig({tree.write("b", "")}), AgentConfig{});
}

// The panel imports it.
TEST(LoadConfig, ReadsALargeFile) {
  const FixtureTree tree;
  EXPECT_EQ(failureOf(tree.write("large.toml", std::string(2'000'000, '#'))), "no failure");
}

TEST(LoadConfig, NamesThePlaceOfAnError) {
  const FixtureTree tree;
  const auto malformed = tree.write("malformed.toml", "[agent]\nname = \"a\"b\"\n");
  EXPECT_TRUE(failureOf(malformed).starts_with(malformed + ":2:")) << failureOf(malformed);
  EXPECT_EQ(failureOf(malformed).find('\n'), std::string::npos);

  const auto wrongType = tree.write("type.toml", "[detection]\nenabled = \"no\"\n");
  EXPECT_EQ(failureOf(wrongType), wrongType + ":2:11: [detection] enabled must be true or false");
}

TEST(LoadConfig, FailsOnAFileThatCannotBeRead) {
  const FixtureTree tree;
  const auto folder = tree.folder("config.toml");
  EXPECT_TRUE(failureOf(folder).starts_with(folder + ": ")) << failureOf(folder);
  const auto bytes = tree.write("bytes.toml", "[agent]\nname = \"\xFF\"\n");
  EXPECT_TRUE(failureOf(bytes).starts_with(bytes + ": ")) << failureOf(bytes);
  const auto huge = tree.write("huge.toml", std::string((64U << 20U) + 1, '#'));
  EXPECT_TRUE(failureOf(huge).starts_with(huge + ": ")) << failureOf(huge);
  ASSERT_EQ(mkfifo(tree.path("fifo").c_str(), 0600), 0);
  EXPECT_NE(failureOf(tree.path("fifo")), "no failure");
}

}  // namespace
}  // namespace quillmark::sample
