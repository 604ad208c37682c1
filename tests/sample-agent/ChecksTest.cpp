// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "checks/AlertHistory.h"
#include "checks/CleartextServices.h"
#include "checks/DeletedExecutables.h"
#include "checks/WritableProgramFolders.h"
#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

Process running(int pid, std::string name, std::string executable) {
  Process process;
  process.pid = pid;
  process.name = std::move(name);
  process.executable = std::move(executable);
  return process;
}

TEST(DeletedExecutables, IsHighIfNoFileHasThePath) {
  const FixtureTree tree;
  tree.folder("12/root");
  const auto alerts =
      deletedExecutables({running(12, "mine\xFF", "/tmp/mine\xFF (deleted)")}, tree.root());
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].alert_type, "Deleted executable");
  EXPECT_EQ(alerts[0].severity, "high");
  EXPECT_EQ(alerts[0].title, "A deleted program still runs: /tmp/mine\uFFFD");
  EXPECT_EQ(alerts[0].description,
            "Process 12 (mine\uFFFD) runs from /tmp/mine\uFFFD, which has been deleted.");
  EXPECT_EQ(alerts[0].file_path, "/tmp/mine\uFFFD");
}

TEST(DeletedExecutables, IsLowIfAnotherFileHasReplacedIt) {
  const FixtureTree tree;
  tree.write("12/root/usr/bin/server", "");
  const auto alerts =
      deletedExecutables({running(12, "server", "/usr/bin/server (deleted)")}, tree.root());
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].severity, "low");
  EXPECT_EQ(alerts[0].title, "A replaced program still runs: /usr/bin/server");
}

TEST(DeletedExecutables, IgnoresAProcessThatHasEndedMeanwhile) {
  const FixtureTree tree;
  // The link of a zombie leads nowhere.
  tree.link("12/root", "nowhere");
  EXPECT_TRUE(deletedExecutables({running(11, "server", "/usr/bin/server (deleted)"),
                                  running(12, "server", "/usr/bin/server (deleted)")},
                                 tree.root())
                  .empty());
}

TEST(DeletedExecutables, IsHighForAProgramThatNeverWasAFile) {
  const FixtureTree tree;
  tree.folder("12/root");
  const auto alerts = deletedExecutables({running(12, "x", "/memfd:x (deleted)")}, tree.root());
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].alert_type, "Fileless program");
  EXPECT_EQ(alerts[0].severity, "high");
  EXPECT_EQ(alerts[0].description, "Process 12 (x) runs from memory, with no file behind it.");
}

TEST(DeletedExecutables, ReportsAnExecutableOnceForAllItsProcesses) {
  const FixtureTree tree;
  for (const auto* root : {"5/root", "6/root", "7/root"}) {
    tree.folder(root);
  }
  auto alerts = deletedExecutables(
      {running(5, "a", "/opt/a (deleted)"), running(6, "a", "/opt/a (deleted)")}, tree.root());
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].description,
            "Process 5 (a) and 1 other run from /opt/a, which has been deleted.");
  alerts =
      deletedExecutables({running(5, "a", "/opt/a (deleted)"), running(6, "a", "/opt/a (deleted)"),
                          running(7, "a", "/opt/a (deleted)")},
                         tree.root());
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].description,
            "Process 5 (a) and 2 others run from /opt/a, which has been deleted.");
}

TEST(DeletedExecutables, IgnoresAFileWhoseNameEndsWithDeleted) {
  const FixtureTree tree;
  tree.write("12/root/opt/x (deleted)", "");
  const auto alerts = deletedExecutables(
      {running(12, "x", "/opt/x (deleted)"), running(13, "y", "/opt/y"), running(14, "z", "")},
      tree.root());
  EXPECT_TRUE(alerts.empty());
}

TEST(WritableProgramFolders, ReportsAFolderInWhichEveryUserMayCreateFiles) {
  const FixtureTree tree;
  const auto open = tree.folder("open");
  const auto sticky = tree.folder("sticky");
  const auto closed = tree.folder("closed");
  const auto file = tree.write("file", "");
  tree.setMode("open", 0777);
  tree.setMode("sticky", 01777);
  tree.setMode("closed", 0775);
  tree.setMode("file", 0777);
  const auto alias = tree.link("alias", open);

  const auto alerts =
      writableProgramFolders(closed + ':' + open + ':' + alias + "::relative:" + file + ':' +
                             tree.path("missing") + ':' + sticky);
  ASSERT_EQ(alerts.size(), 2U);
  EXPECT_EQ(alerts[0].alert_type, "Writable program folder");
  EXPECT_EQ(alerts[0].severity, "high");
  EXPECT_EQ(alerts[0].file_path, open);
  EXPECT_EQ(alerts[0].title, "Every user may write to the program folder " + open);
  EXPECT_EQ(alerts[1].file_path, sticky);
}

TEST(WritableProgramFolders, IsEmptyWithoutASearchPath) {
  EXPECT_TRUE(writableProgramFolders("").empty());
}

TEST(ExposedCleartextServices, ReportsAPortOnceForBothFamilies) {
  auto telnet = running(44, "inetd", "/usr/sbin/inetd");
  telnet.sockets = {9};
  const std::vector<Socket> sockets = {
      {"tcp", Transport::tcp, {"0.0.0.0", 23}, {"0.0.0.0", 0}, 0x0A, 8},
      {"tcp6", Transport::tcp, {"::", 23}, {"::", 0}, 0x0A, 9},
      {"tcp", Transport::tcp, {"127.0.0.1", 21}, {"0.0.0.0", 0}, 0x0A, 9},
      {"tcp", Transport::tcp, {"0.0.0.0", 22}, {"0.0.0.0", 0}, 0x0A, 9},
  };
  const auto alerts = exposedCleartextServices(sockets, {telnet});
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].alert_type, "Cleartext service");
  EXPECT_EQ(alerts[0].severity, "high");
  EXPECT_EQ(alerts[0].title, "Port 23 (Telnet) is open on all interfaces");
  EXPECT_EQ(alerts[0].description,
            "Port 23 accepts connections from every network. It is the port of Telnet, over which "
            "everything travels unencrypted, passwords included. It is served by process 44 "
            "(inetd).");
  EXPECT_EQ(alerts[0].file_path, "/usr/sbin/inetd");
}

TEST(ExposedCleartextServices, OmitsAProcessThatItCannotSee) {
  const auto alerts = exposedCleartextServices(
      {{"tcp", Transport::tcp, {"0.0.0.0", 21}, {"0.0.0.0", 0}, 0x0A, 8}}, {});
  ASSERT_EQ(alerts.size(), 1U);
  EXPECT_EQ(alerts[0].description,
            "Port 21 accepts connections from every network. It is the port of FTP, over which "
            "everything travels unencrypted, passwords included.");
  EXPECT_EQ(alerts[0].file_path, std::nullopt);
}

ThreatAlert finding(std::string title, std::string severity = "high") {
  ThreatAlert alert;
  alert.alert_type = "type";
  alert.severity = std::move(severity);
  alert.title = std::move(title);
  return alert;
}

AlertHistory::Time at(int seconds) { return AlertHistory::Time(std::chrono::seconds(seconds)); }

std::vector<std::string> summary(const std::vector<ThreatAlert>& alerts) {
  std::vector<std::string> lines;
  lines.reserve(alerts.size());
  for (const auto& alert : alerts) {
    lines.push_back(*alert.title + ' ' + alert.timestamp->substr(14, 5));
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(AlertHistory, KeepsTheTimeOfTheFirstScanThatFoundIt) {
  AlertHistory history;
  EXPECT_EQ(summary(history.withFirstSeen({finding("a")}, at(1))), Lines{"a 00:01"});
  EXPECT_EQ(summary(history.withFirstSeen({finding("a")}, at(61))), Lines{"a 00:01"});
}

TEST(AlertHistory, TreatsAFindingThatReturnsAsNew) {
  AlertHistory history;
  EXPECT_EQ(history.withFirstSeen({finding("a")}, at(1)).size(), 1U);
  EXPECT_TRUE(history.withFirstSeen({}, at(2)).empty());
  EXPECT_EQ(summary(history.withFirstSeen({finding("a")}, at(3))), Lines{"a 00:03"});
}

TEST(AlertHistory, ListsTheNewestFirstAndThenTheMostSevere) {
  AlertHistory history;
  EXPECT_EQ(summary(history.withFirstSeen(
                {finding("low", "low"), finding("odd", "unheard of"),
                 finding("critical", "critical"), finding("high"), finding("medium", "medium")},
                at(1))),
            (Lines{"critical 00:01", "high 00:01", "medium 00:01", "low 00:01", "odd 00:01"}));
  EXPECT_EQ(summary(history.withFirstSeen({finding("critical", "critical"), finding("new", "low")},
                                          at(2))),
            (Lines{"new 00:02", "critical 00:01"}));
}

TEST(Rfc3339, IsInUtcAndWholeSeconds) {
  const std::chrono::system_clock::time_point time{std::chrono::milliseconds(1767225599999)};
  EXPECT_EQ(rfc3339(time), "2025-12-31T23:59:59Z");
  EXPECT_EQ(rfc3339({}), "1970-01-01T00:00:00Z");
}

TEST(IsThreat, CountsHighAndCritical) {
  EXPECT_TRUE(isThreat(finding("", "critical")));
  EXPECT_TRUE(isThreat(finding("", "high")));
  EXPECT_FALSE(isThreat(finding("", "medium")));
  EXPECT_FALSE(isThreat(finding("", "low")));
}

}  // namespace
}  // namespace quillmark::sample
