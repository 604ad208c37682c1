// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "agentctl/ConfigFile.h"
#include "agentctl/WithHome.h"
#include "platform/Files.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using Outcome = ImportResult::Outcome;

class Import : public WithHome {
 protected:
  /// Expects that every byte of `text` is imported.
  void expectImported(const std::string& text) const {
    writeFile(source, text);
    const auto result = importConfigFile(source);
    EXPECT_EQ(result.outcome, Outcome::imported) << result.error.message();
    EXPECT_TRUE(contentOf(configFile()) == text) << text.size() << " bytes";
  }

  /// Expects a failure that does not even create a folder.
  void expectRefused(const std::string& path, const std::string& message) const {
    const auto result = importConfigFile(path);
    EXPECT_EQ(result.outcome, Outcome::failed);
    EXPECT_EQ(result.error.message(), message);
    EXPECT_FALSE(fs::exists(home() + "/.config"));
  }

  void expectNoAgentSection(const std::string& text) const {
    writeFile(source, text);
    const auto result = importConfigFile(source);
    EXPECT_EQ(result.outcome, Outcome::missingAgentSection) << text;
    EXPECT_FALSE(result.error);
  }

  const std::string source = home() + "/chosen.toml";
};

TEST_F(Import, CopiesEveryByte) {
  for (const std::string text :
       {"[agent]", "[agent]\n", "[agent]\r\napi_key = \"k\"\r\n", "\n\n[agent]\n\n", "\t[agent] \r",
        "[agent]\nname = \"caf\u00E9 \U0001F600\"", "\uFEFF[agent]\n"}) {
    expectImported(text);
  }
  expectImported(std::string("[agent]\0\n", 9));
}

TEST_F(Import, AcceptsAnAgentSectionAnywhere) {
  expectImported("# [agent]\n");
  expectImported("x = \"[agent]\"\n");
  expectImported("[[agent]]\n");
  expectImported("not toml at all [agent]");
}

TEST_F(Import, RefusesAFileWithoutAnAgentSection) {
  for (const std::string text : {"", "\n", "agent", "[Agent]", "[AGENT]", "[ agent ]", "[agent",
                                 "[agents]", "[agent.x]", "[age\nnt]", "api_key = \"k\"\n"}) {
    expectNoAgentSection(text);
    EXPECT_FALSE(fs::exists(home() + "/.config")) << "nothing is created";
  }
}

TEST_F(Import, WithoutAnAgentSectionKeepsTheConfiguration) {
  writeFile(configFile(), "the old one");
  expectNoAgentSection("[other]");
  EXPECT_EQ(contentOf(configFile()), "the old one");
}

TEST_F(Import, ReplacesTheWholeFile) {
  writeFile(configFile(), std::string(5000, '#'));
  expectImported("[agent]");
  EXPECT_EQ(namesIn(configFolder()), std::set<std::string>{"config.toml"});
}

TEST_F(Import, AcceptsAtMostSixtyFourMebibytes) {
  std::string text = "[agent]\n";
  text.resize(67108864, '#');
  expectImported(text);
  fs::remove_all(home() + "/.config");
  writeFile(source, text + "#");
  expectRefused(source, "The file is too large");
}

TEST_F(Import, RefusesWhatIsNotUtf8) {
  for (const std::string bad : {"\xFF", "caf\xE9", "\xED\xA0\x80", "\xC0\xAF", "\xC3"}) {
    writeFile(source, "[agent]\n" + bad);
    expectRefused(source, "The file is not UTF-8 text");
  }
}

TEST_F(Import, RefusesFilesThatAreNotRegular) {
  const auto fifo = home() + "/fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  fs::create_symlink(fifo, home() + "/link");
  for (const std::string& path : {fifo, home() + "/link", home(), std::string("/dev/zero")}) {
    expectRefused(path, "Not a regular file");
  }
}

TEST_F(Import, RefusesMissingFiles) {
  fs::create_symlink("nowhere", home() + "/dangling");
  fs::create_symlink("ring", home() + "/ring");
  expectRefused(source, "No such file or directory");
  expectRefused("", "No such file or directory");
  expectRefused(home() + "/dangling", "No such file or directory");
  expectRefused(home() + "/ring", "Too many levels of symbolic links");
}

TEST_F(Import, FollowsALinkToAFile) {
  writeFile(home() + "/real", "[agent] behind a link");
  fs::create_symlink("real", home() + "/link");
  EXPECT_EQ(importConfigFile(home() + "/link").outcome, Outcome::imported);
  EXPECT_EQ(contentOf(configFile()), "[agent] behind a link");
}

TEST_F(Import, AcceptsTheConfigurationItself) {
  writeFile(configFile(), "[agent]\nmine = 1\n");
  EXPECT_EQ(importConfigFile(configFile()).outcome, Outcome::imported);
  EXPECT_EQ(contentOf(configFile()), "[agent]\nmine = 1\n");
  EXPECT_EQ(namesIn(configFolder()), std::set<std::string>{"config.toml"});
}

TEST_F(Import, AcceptsTheFileThatTheConfigurationLinksTo) {
  writeFile(home() + "/real", "[agent]\n");
  fs::create_directories(configFolder());
  fs::create_symlink(home() + "/real", configFile());
  EXPECT_EQ(importConfigFile(home() + "/real").outcome, Outcome::imported);
  EXPECT_TRUE(fs::is_symlink(configFile()));
  EXPECT_EQ(contentOf(home() + "/real"), "[agent]\n");
}

TEST_F(Import, MakesTheCopyReadableForTheUserOnly) {
  writeFile(source, "[agent]");
  fs::permissions(source, fs::perms{0644});
  EXPECT_EQ(importConfigFile(source).outcome, Outcome::imported);
  EXPECT_EQ(modeOf(configFile()), 0600U);
  EXPECT_EQ(modeOf(source), 0644U);
}

}  // namespace
}  // namespace quillmark::test
