// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/SetUidFiles.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

class SetUidFilesTest : public testing::Test {
 protected:
  std::string addProgram(const std::string& relative, mode_t mode = 04755) {
    auto path = tree_.write(relative, "");
    tree_.setMode(relative, mode);
    return path;
  }

  [[nodiscard]] SetUidSearch search(const WalkLimits& limits = {}) const {
    return setUidFiles(tree_.root(), limits, {});
  }

  [[nodiscard]] static std::vector<std::string> paths(const SetUidSearch& search) {
    std::vector<std::string> result;
    for (const auto& alert : search.alerts) {
      result.push_back(alert.file_path.value_or(""));
    }
    return result;
  }

  using Paths = std::vector<std::string>;
  FixtureTree tree_;
};

TEST_F(SetUidFilesTest, ReportsAProgramThatRunsWithItsOwnersRights) {
  const auto path = addProgram("a/b/tool");
  const auto found = search();
  ASSERT_EQ(found.alerts.size(), 1U);
  EXPECT_TRUE(found.complete);
  const bool isRoot = geteuid() == 0;
  const std::string owner = isRoot ? "root" : "user " + std::to_string(geteuid());
  EXPECT_EQ(found.alerts[0].alert_type, "Set-user-ID file");
  EXPECT_EQ(found.alerts[0].severity, isRoot ? "critical" : "high");
  EXPECT_EQ(found.alerts[0].title,
            "A program that runs as " + owner + " lies in an unusual place: " + path);
  EXPECT_EQ(found.alerts[0].description,
            "Whoever starts " + path + " runs it with the rights of " + owner + '.');
  EXPECT_EQ(found.alerts[0].file_path, path);
}

TEST_F(SetUidFilesTest, DistinguishesRootFromOtherOwners) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root can change the owner of a file";
  }
  const auto path = addProgram("tool");
  ASSERT_EQ(chown(path.c_str(), 1000, 1000), 0);
  tree_.setMode("tool", 04755);
  const auto found = search();
  ASSERT_EQ(found.alerts.size(), 1U);
  EXPECT_EQ(found.alerts[0].severity, "high");
  EXPECT_NE(found.alerts[0].description->find("user 1000"), std::string::npos);
}

TEST_F(SetUidFilesTest, SkipsFilesThatDoNotRunWithTheirOwnersRights) {
  addProgram("plain", 0755);
  addProgram("group", 02755);
  addProgram("not-a-program", 04644);
  tree_.folder("folder");
  tree_.setMode("folder", 04755);
  EXPECT_EQ(paths(search()), Paths{});
}

TEST_F(SetUidFilesTest, FollowsNoLink) {
  const FixtureTree other;
  other.write("tool", "");
  other.setMode("tool", 04755);
  tree_.link("file", other.path("tool"));
  tree_.link("folder", other.root());
  tree_.link("loop", tree_.root());
  EXPECT_EQ(paths(search()), Paths{});
}

TEST_F(SetUidFilesTest, EntersARootThatIsALink) {
  addProgram("tool");
  const FixtureTree other;
  const auto found = setUidFiles(other.link("home", tree_.root()), {}, {});
  EXPECT_EQ(paths(found), Paths{other.path("home/tool")});
}

TEST_F(SetUidFilesTest, DoesNotBlockOnAFifo) {
  ASSERT_EQ(mkfifo(tree_.path("fifo").c_str(), 0600), 0);
  const auto path = addProgram("tool");
  EXPECT_EQ(paths(search()), Paths{path});
}

TEST_F(SetUidFilesTest, StaysInItsFileSystem) {
  struct stat outer {};
  struct stat inner {};
  if (stat("/dev", &outer) != 0 || stat("/dev/shm", &inner) != 0 || outer.st_dev == inner.st_dev) {
    GTEST_SKIP() << "/dev/shm is not a separate file system here";
  }
  const FixtureTree elsewhere("/dev/shm");
  const auto path = elsewhere.write("tool", "");
  elsewhere.setMode("tool", 04755);
  const auto contains = [&](const std::vector<std::string>& found) {
    return std::find(found.begin(), found.end(), path) != found.end();
  };
  EXPECT_TRUE(contains(paths(setUidFiles("/dev/shm", {}, {}))));
  EXPECT_FALSE(contains(paths(setUidFiles("/dev", {}, {}))));
}

TEST_F(SetUidFilesTest, ReportsInTheOrderOfTheNames) {
  const auto b = addProgram("b");
  const auto a = addProgram("a");
  const auto c = addProgram("c/c");
  EXPECT_EQ(paths(search()), (Paths{a, b, c}));
}

TEST_F(SetUidFilesTest, EndsAtTheMaximumDepth) {
  const auto path = addProgram("1/2/reached");
  addProgram("1/2/3/beyond");
  WalkLimits limits;
  limits.depth = 2;
  const auto found = search(limits);
  EXPECT_EQ(paths(found), Paths{path});
  EXPECT_FALSE(found.complete);
}

TEST_F(SetUidFilesTest, EndsAtTheMaximumNumberOfNames) {
  for (int i = 0; i < 20; ++i) {
    addProgram(std::to_string(i));
  }
  WalkLimits limits;
  limits.entries = 20;
  EXPECT_EQ(search(limits).alerts.size(), 20U);
  EXPECT_TRUE(search(limits).complete);
  limits.entries = 7;
  EXPECT_EQ(search(limits).alerts.size(), 7U);
  EXPECT_FALSE(search(limits).complete);
}

TEST_F(SetUidFilesTest, EndsAtItsTimeLimit) {
  addProgram("tool");
  WalkLimits limits;
  limits.time = std::chrono::steady_clock::duration::zero();
  EXPECT_EQ(paths(search(limits)), Paths{});
  EXPECT_FALSE(search(limits).complete);
}

TEST_F(SetUidFilesTest, EndsWhenStopIsRequested) {
  addProgram("tool");
  std::stop_source stop;
  stop.request_stop();
  const auto found = setUidFiles(tree_.root(), {}, stop.get_token());
  EXPECT_TRUE(found.alerts.empty());
  EXPECT_FALSE(found.complete);
}

TEST_F(SetUidFilesTest, FindsNothingInAMissingFolder) {
  const auto found = setUidFiles(tree_.path("missing"), {}, {});
  EXPECT_TRUE(found.alerts.empty());
  EXPECT_TRUE(found.complete);
}

}  // namespace
}  // namespace quillmark::sample
