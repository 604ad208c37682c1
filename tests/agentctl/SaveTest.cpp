// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>

#include <gtest/gtest.h>
#include <boost/system/errc.hpp>

#include "agentctl/ConfigFile.h"
#include "agentctl/ConfigText.h"
#include "agentctl/WithHome.h"
#include "platform/ComputerName.h"
#include "platform/Files.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

constexpr std::size_t digitsOfId = 8;

class Save : public WithHome {
 protected:
  /// The file after a save, which must succeed.
  [[nodiscard]] std::string saved(const std::string& url, const std::string& key) const {
    const auto error = saveConfig(url, key);
    EXPECT_FALSE(error) << error.message();
    return contentOf(configFile());
  }
};

/// The value of `key` in the agent section of `text`, without quotes.
std::string valueIn(const std::string& text, const std::string& key) {
  const auto opening = "\n" + key + " = \"";
  const auto start = text.find(opening) + opening.size();
  return text.substr(start, text.find('"', start) - start);
}

std::string lastDigits(const std::string& agentId) {
  return agentId.substr(agentId.size() - digitsOfId);
}

TEST_F(Save, WritesTheWholeTextWithThisMachinesValues) {
  const auto text = saved("https://server.example", "the-key");
  const std::string name = computerName().value();
  EXPECT_EQ(text,
            configText({.agentId = "macos-" + name + "-" + lastDigits(valueIn(text, "agent_id")),
                        .machineIdentifier = name,
                        .serverUrl = "https://server.example",
                        .apiKey = "the-key",
                        .home = home()}));
}

TEST_F(Save, EndsTheIdWithUpperCaseDigits) {
  for (int i = 0; i < 20; ++i) {
    const auto digits = lastDigits(valueIn(saved("", ""), "agent_id"));
    EXPECT_EQ(digits.find_first_not_of("0123456789ABCDEF"), std::string::npos) << digits;
  }
}

TEST_F(Save, TwiceDiffersOnlyInTheIdsDigits) {
  auto first = saved("https://server.example", "key");
  auto second = saved("https://server.example", "key");
  EXPECT_NE(first, second);
  for (auto* const text : {&first, &second}) {
    const auto id = valueIn(*text, "agent_id");
    text->replace(text->find(id) + id.size() - digitsOfId, digitsOfId, digitsOfId, '-');
  }
  EXPECT_EQ(first, second);
}

TEST_F(Save, ReplacesTheWholeFile) {
  writeFile(configFile(), "[other]\nold_key = 1\n" + std::string(5000, '#'));
  const auto text = saved("u", "k");
  EXPECT_EQ(text.find("old_key"), std::string::npos);
  EXPECT_EQ(text.find('#'), std::string::npos);
  EXPECT_TRUE(text.ends_with("audit.log\""));
}

TEST_F(Save, LeavesNothingElseBehind) {
  EXPECT_NE(saved("u", "k"), "");
  EXPECT_NE(saved("u", "k"), "");
  EXPECT_EQ(namesIn(home()), std::set<std::string>{".config"});
  EXPECT_EQ(namesIn(home() + "/.config"), std::set<std::string>{"quillmark"});
  EXPECT_EQ(namesIn(configFolder()), std::set<std::string>{"config.toml"});
}

TEST_F(Save, CreatesFileAndFoldersForTheUserOnly) {
  EXPECT_NE(saved("u", "k"), "");
  EXPECT_EQ(modeOf(configFile()), 0600U);
  EXPECT_EQ(modeOf(configFolder()), 0700U);
  EXPECT_EQ(modeOf(home() + "/.config"), 0700U);
}

TEST_F(Save, KeepsTheModeOfExistingFolders) {
  std::filesystem::create_directories(home() + "/.config");
  std::filesystem::permissions(home() + "/.config", std::filesystem::perms{0755});
  EXPECT_NE(saved("u", "k"), "");
  EXPECT_EQ(modeOf(home() + "/.config"), 0755U);
}

TEST_F(Save, FailsWhereAFileHasTheFoldersName) {
  writeFile(home() + "/.config", "a file");
  EXPECT_EQ(saveConfig("u", "k"), boost::system::errc::not_a_directory);
  EXPECT_EQ(contentOf(home() + "/.config"), "a file");
}

TEST_F(Save, FailsWhereAFileHasTheLastFoldersName) {
  writeFile(configFolder(), "a file");
  EXPECT_EQ(saveConfig("u", "k").message(), "Not a directory");
  EXPECT_EQ(contentOf(configFolder()), "a file");
}

TEST_F(Save, FailsWhereAFolderHasTheFilesName) {
  std::filesystem::create_directories(configFile());
  EXPECT_EQ(saveConfig("u", "k").message(), "Not a regular file");
  EXPECT_EQ(namesIn(configFolder()), std::set<std::string>{"config.toml"});
}

}  // namespace
}  // namespace quillmark::test
