// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "agentctl/Children.h"
#include "agentctl/WithHome.h"
#include "platform/Files.h"

namespace quillmark::test {
namespace {

/// The first line that the driver prints for `action` on a machine with this name.
std::string onMachine(const std::string& name, const std::vector<std::string>& action) {
  return elsewhere({"--unshare-uts", "--hostname", name}, action);
}

class ComputerNames : public WithHome {
 protected:
  /// The first three lines that are saved on a machine with this name, without the
  /// random digits of the id.
  [[nodiscard]] std::string savedOn(const std::string& name) const {
    EXPECT_EQ(onMachine(name, {"save", "k"}), "ok");
    auto text = contentOf(configFile());
    text.resize(text.find("\nserver_url"));
    text.erase(text.find("\"\nmachine_identifier") - 8, 8);
    return text;
  }
};

TEST_F(ComputerNames, AreReadUnchanged) {
  for (const std::string name : {"host", "Ann's Mac", "caf\u00E9", "UPPER.lower.example", " "}) {
    EXPECT_EQ(onMachine(name, {"name"}), name);
  }
}

// The longest name that the system allows, which fills the system's buffer.
TEST_F(ComputerNames, AreReadCompletely) {
  const std::string longest(64, 'x');
  EXPECT_EQ(onMachine(longest, {"name"}), longest);
}

TEST_F(ComputerNames, AreNoneWhenEmpty) { EXPECT_EQ(onMachine("", {"name"}), "none"); }

TEST_F(ComputerNames, AreSavedUnchanged) {
  EXPECT_EQ(savedOn("Ann's Mac"),
            "[agent]\nagent_id = \"macos-Ann's Mac-\"\nmachine_identifier = \"Ann's Mac\"");
  EXPECT_EQ(savedOn("a \"b\""),
            "[agent]\nagent_id = \"macos-a \"b\"-\"\nmachine_identifier = \"a \"b\"\"");
}

TEST_F(ComputerNames, HaveASubstituteWhenEmpty) {
  EXPECT_EQ(savedOn(""),
            "[agent]\nagent_id = \"macos-device-\"\nmachine_identifier = \"macos-device\"");
}

}  // namespace
}  // namespace quillmark::test
