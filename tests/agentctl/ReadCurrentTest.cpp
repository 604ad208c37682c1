// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "agentctl/ConfigReadBack.h"
#include "agentctl/WithHome.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

class ReadCurrent : public WithHome {
 protected:
  [[nodiscard]] std::string second() const { return home() + "/.quillmark/config.toml"; }

  /// Expects that the first file is ignored and the second one is read.
  void expectSecond() const {
    EXPECT_EQ(readCurrentConfig().apiKey, std::nullopt);
    writeFile(second(), "api_key = second");
    EXPECT_EQ(readCurrentConfig().apiKey, "second");
  }
};

TEST_F(ReadCurrent, IsNothingWithoutAFile) { EXPECT_EQ(readCurrentConfig(), ConfigEntries{}); }

TEST_F(ReadCurrent, ReadsWhatWasSaved) {
  ASSERT_FALSE(saveConfig("https://server.example", "the-key"));
  EXPECT_EQ(readCurrentConfig(), (ConfigEntries{"the-key", "https://server.example"}));
}

TEST_F(ReadCurrent, ReadsWhatWasImported) {
  writeFile(home() + "/chosen", "[agent]\napi_key = 'imported'\n");
  ASSERT_EQ(importConfigFile(home() + "/chosen").outcome, ImportResult::Outcome::imported);
  EXPECT_EQ(readCurrentConfig(), (ConfigEntries{"imported", std::nullopt}));
}

TEST_F(ReadCurrent, FallsBackToTheSecondFile) { expectSecond(); }

TEST_F(ReadCurrent, IgnoresTheSecondFileIfTheFirstIsReadable) {
  writeFile(second(), "api_key = second\nserver_url = second");
  for (const std::string text :
       {"", "[agent]\n", "api_key = \"\"\n", "api_key = pending-registration"}) {
    writeFile(configFile(), text);
    EXPECT_EQ(readCurrentConfig(), ConfigEntries{}) << text;
  }
  writeFile(configFile(), "api_key = first");
  EXPECT_EQ(readCurrentConfig(), (ConfigEntries{"first", std::nullopt}));
}

TEST_F(ReadCurrent, IgnoresAFirstFileThatIsNotUtf8) {
  writeFile(configFile(), "api_key = \xFF");
  expectSecond();
}

TEST_F(ReadCurrent, AcceptsAtMostSixtyFourMebibytes) {
  std::string text = "api_key = first\n";
  text.resize(67108864, '#');
  writeFile(configFile(), text);
  EXPECT_EQ(readCurrentConfig().apiKey, "first");
  writeFile(configFile(), text + "#");
  expectSecond();
}

TEST_F(ReadCurrent, IgnoresAFolder) {
  std::filesystem::create_directories(configFile());
  expectSecond();
}

// Nobody writes to it: reading would wait for ever.
TEST_F(ReadCurrent, IgnoresAFifo) {
  std::filesystem::create_directories(configFolder());
  ASSERT_EQ(mkfifo(configFile().c_str(), 0600), 0);
  expectSecond();
}

TEST_F(ReadCurrent, IgnoresADanglingLink) {
  std::filesystem::create_directories(configFolder());
  std::filesystem::create_symlink("nowhere", configFile());
  expectSecond();
}

TEST_F(ReadCurrent, ChangesNothingOnTheDisk) {
  EXPECT_EQ(readCurrentConfig(), ConfigEntries{});
  EXPECT_TRUE(std::filesystem::is_empty(home()));
}

}  // namespace
}  // namespace quillmark::test
