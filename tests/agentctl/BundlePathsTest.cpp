// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "agentctl/WithAgents.h"
#include "platform/Files.h"

namespace quillmark::test {
namespace {

/// Starting from bundles whose path has characters that a shell interprets.
class BundlePaths : public WithAgents {
 protected:
  BundlePaths() { makeLogFolder(); }
};

TEST_F(BundlePaths, ThatBreakOutOfTheQuotesStartNothing) {
  for (const std::string name : {"Ann's.app", "'; touch injected; '.app", "'", "two\n'lines.app"}) {
    const Bundle bundle(name);
    EXPECT_EQ(bundle.resultOf("start"), "Error: The application's path contains an apostrophe")
        << testing::PrintToString(name);
    EXPECT_TRUE(waitUntil(isAlone));
    EXPECT_EQ(namesIn(std::filesystem::path(bundle.path()).parent_path()),
              std::set<std::string>{name})
        << "nothing else was run";
    EXPECT_FALSE(bundle.wasStarted());
  }
}

TEST_F(BundlePaths, ThatStayQuotedStartTheirAgent) {
  for (const std::string name :
       {"My App.app", "\"quoted\".app", "$HOME.app", "`id`.app", "a;b&c|d.app", "back\\slash.app",
        "*.app", "caf\u00E9 \U0001F600.app", "-n.app", "\xFF.app", "two\nlines.app", "tab\t.app",
        "\x01.app", "\x1F.app", "\x7F.app"}) {
    const Bundle bundle(name);
    startAgent(bundle);
    EXPECT_TRUE(waitUntil([&] { return bundle.wasStarted(); })) << testing::PrintToString(name);
    endProcessesWithTheName();
  }
}

// A program outside a bundle looks for the agent in the same layout, below its own
// folder.
TEST_F(BundlePaths, OfAProgramOutsideABundleAreItsFolder) {
  const Bundle bundle;
  const auto panel = bundle.path() + "/panel";
  std::filesystem::rename(bundle.programs() + "/panel", panel);
  EXPECT_EQ(firstLineOf({panel, "start"}), "ok");
  EXPECT_TRUE(waitUntil([&] { return bundle.wasStarted(); }));
}

TEST_F(BundlePaths, FollowALink) {
  const Bundle bundle;
  const TemporaryFolder elsewhere;
  std::filesystem::create_symlink(bundle.programs() + "/panel", elsewhere / "panel");
  EXPECT_EQ(firstLineOf({elsewhere / "panel", "start"}), "ok");
  EXPECT_TRUE(waitUntil([&] { return bundle.wasStarted(); }));
}

}  // namespace
}  // namespace quillmark::test
