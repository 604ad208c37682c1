// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Applications.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sample-agent/FixtureTree.h"
#include "scan/DesktopEntry.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

std::string statusOf(const std::string& name, const std::string& status = "install ok installed") {
  return "Package: " + name + "\nStatus: " + status + "\nMaintainer: The " + name +
         " team <team@example.org>\nArchitecture: amd64\nVersion: 1:2.0-3\nDescription: text\n"
         " Version: not this one\n\n";
}

std::string entryText(const std::string& name, const std::string& extra = "") {
  return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + extra;
}

class ApplicationReaderTest : public testing::Test {
 protected:
  [[nodiscard]] std::vector<std::string> names() {
    std::vector<std::string> result;
    for (const auto& app : reader_.read()) {
      result.push_back(app.name);
    }
    return result;
  }

  static SystemPaths pathsIn(const FixtureTree& tree) {
    SystemPaths paths;
    paths.dpkg = tree.path("dpkg");
    paths.packagedApplications = tree.path("packaged");
    paths.otherApplications = {tree.path("own"), tree.path("local")};
    return paths;
  }

  using Names = std::vector<std::string>;

  FixtureTree tree_;
  ApplicationReader reader_{pathsIn(tree_)};
};

TEST_F(ApplicationReaderTest, ListsPackagesWithACommand) {
  tree_.write("dpkg/status", statusOf("nano") + statusOf("libfoo1") +
                                 statusOf("gone", "deinstall ok config-files"));
  tree_.write("dpkg/info/nano.list", "/.\n/usr\n/usr/bin\n/usr/bin/nano\n/usr/bin/rnano\n");
  tree_.write("dpkg/info/libfoo1:amd64.list", "/usr/lib/libfoo.so.1\n/usr/share/doc/bin/x\n");
  tree_.write("dpkg/info/gone.list", "/usr/bin/gone\n");
  const std::vector<InstalledApp> expected = {
      {"nano", "1:2.0-3", "The nano team", "/usr/bin/nano"}};
  EXPECT_EQ(reader_.read(), expected);
}

TEST_F(ApplicationReaderTest, FindsTheListOfOneOfSeveralArchitectures) {
  tree_.write("dpkg/status", statusOf("tool"));
  tree_.write("dpkg/info/tool:amd64.list", "/bin/tool\n");
  EXPECT_EQ(names(), Names{"tool"});
}

TEST_F(ApplicationReaderTest, GivesAPathOnlyIfOneProgramRepresentsThePackage) {
  tree_.write("dpkg/status", statusOf("coreutils") + statusOf("base-passwd"));
  tree_.write("dpkg/info/coreutils.list", "/bin/cat\n/bin/ls\n");
  tree_.write("dpkg/info/base-passwd.list", "/usr/sbin/update-passwd\n");
  const auto apps = reader_.read();
  ASSERT_EQ(apps.size(), 2U);
  EXPECT_EQ(apps[0].path, "/usr/sbin/update-passwd");
  EXPECT_EQ(apps[1].path, std::nullopt);
}

TEST_F(ApplicationReaderTest, ListsMenuEntriesFirstUnderTheirNamesThere) {
  tree_.write("dpkg/status", statusOf("abc") + statusOf("firefox-esr"));
  tree_.write("dpkg/info/abc.list", "/usr/bin/abc\n");
  tree_.write("dpkg/info/firefox-esr.list",
              "/usr/bin/firefox-esr\n/usr/share/applications/firefox-esr.desktop\n");
  tree_.write("packaged/firefox-esr.desktop", entryText("Firefox ESR", "Exec=firefox-esr %u\n"));
  const std::vector<InstalledApp> expected = {
      {"Firefox ESR", "1:2.0-3", "The firefox-esr team", "/usr/bin/firefox-esr"},
      {"abc", "1:2.0-3", "The abc team", "/usr/bin/abc"}};
  EXPECT_EQ(reader_.read(), expected);
}

TEST_F(ApplicationReaderTest, ListsAPackageWithAHiddenEntryByItsCommand) {
  tree_.write("dpkg/status", statusOf("vim"));
  tree_.write("dpkg/info/vim.list", "/usr/bin/vim\n/usr/share/applications/vim.desktop\n");
  tree_.write("packaged/vim.desktop", entryText("Vim", "NoDisplay=true\n"));
  EXPECT_EQ(names(), Names{"vim"});
}

TEST_F(ApplicationReaderTest, ListsEntriesWithoutAPackage) {
  tree_.write("own/game.desktop", entryText("Game", "Exec=\"/opt/a game/run\" --now\n"));
  tree_.write("local/other.desktop", entryText("Other", "Exec=other\n"));
  tree_.write("local/notes.txt", entryText("Not an entry"));
  const std::vector<InstalledApp> expected = {
      {"Game", std::nullopt, std::nullopt, "/opt/a game/run"},
      {"Other", std::nullopt, std::nullopt, std::nullopt}};
  EXPECT_EQ(reader_.read(), expected);
}

TEST_F(ApplicationReaderTest, ListsAnEntryOnceIfSeveralFoldersHaveIt) {
  tree_.write("dpkg/status", statusOf("pkg"));
  tree_.write("dpkg/info/pkg.list", "/usr/share/applications/pkg.desktop\n");
  tree_.write("packaged/pkg.desktop", entryText("Packaged"));
  tree_.write("own/pkg.desktop", entryText("Changed by the user"));
  tree_.write("own/both.desktop", entryText("User's"));
  tree_.write("local/both.desktop", entryText("Local"));
  EXPECT_EQ(names(), (Names{"Packaged", "User's"}));
}

TEST_F(ApplicationReaderTest, ReadsThePackagesAgainOnlyWhenDpkgHasChangedThem) {
  tree_.write("dpkg/status", statusOf("one"));
  tree_.write("dpkg/info/one.list", "/usr/bin/one\n");
  EXPECT_EQ(names(), Names{"one"});

  tree_.write("dpkg/info/one.list", "");
  EXPECT_EQ(names(), Names{"one"}) << "the database says that nothing has changed";

  // As dpkg does it: a new file takes the name of the old one.
  tree_.write("dpkg/status-new", statusOf("two"));
  tree_.write("dpkg/info/two.list", "/usr/bin/two\n");
  std::filesystem::rename(tree_.path("dpkg/status-new"), tree_.path("dpkg/status"));
  EXPECT_EQ(names(), Names{"two"});
}

TEST_F(ApplicationReaderTest, ReplacesBytesThatAreNotText) {
  tree_.write("dpkg/status",
              "Package: caf\xE9\nStatus: install ok installed\nMaintainer: \xFF\nVersion: 1\n");
  tree_.write("dpkg/info/caf\xE9.list", "/usr/bin/caf\xE9\n");
  const std::vector<InstalledApp> expected = {{"caf\uFFFD", "1", "\uFFFD", "/usr/bin/caf\uFFFD"}};
  EXPECT_EQ(reader_.read(), expected);
}

TEST_F(ApplicationReaderTest, IsEmptyWithoutDatabaseAndEntries) {
  EXPECT_TRUE(reader_.read().empty());
}

TEST(ParseDesktopEntry, ReadsNameAndProgramOfTheMainGroup) {
  const auto entry = parseDesktopEntry(
      "# comment\n[Desktop Entry]\nType = Application\nName[de]=Rechner\nName=Calculator\r\n"
      "#Name=Commented\nExec=/usr/bin/calc --new\n[Desktop Action New]\nName=New\nExec=other\n");
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->name, "Calculator");
  EXPECT_EQ(entry->command, "/usr/bin/calc");
}

TEST(ParseDesktopEntry, ReadsAnUnclosedQuoteToTheEnd) {
  const auto entry = parseDesktopEntry(entryText("X", "Exec=\"/opt/x y\n"));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->command, "/opt/x y");
}

TEST(ParseDesktopEntry, SkipsEntriesThatNoMenuShows) {
  EXPECT_FALSE(parseDesktopEntry(""));
  EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Link\nName=X\n"));
  EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Application\n"));
  EXPECT_FALSE(parseDesktopEntry("Type=Application\nName=X\n"));
  EXPECT_FALSE(parseDesktopEntry(entryText("X", "Hidden=true\n")));
  EXPECT_FALSE(parseDesktopEntry(entryText("X", "NoDisplay=true\n")));
  EXPECT_TRUE(parseDesktopEntry(entryText("X", "NoDisplay=false\n")));
}

}  // namespace
}  // namespace quillmark::sample
