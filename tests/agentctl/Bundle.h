// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>

#include "agentctl/Children.h"
#include "agentctl/Processes.h"
#include "platform/TemporaryFolder.h"

namespace quillmark::test {

/// An application bundle `name` with a small panel and a substitute for the agent.
class Bundle final {
 public:
  explicit Bundle(const std::string& name = "X.app") : path_(folder_ / name) {
    std::filesystem::create_directories(programs());
    for (const std::string program : {"panel", agentName}) {
      std::filesystem::copy_file(QUILLMARK_AGENTCTL_DRIVER, programs() + "/" + program);
    }
  }

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string programs() const { return path_ + "/Contents/MacOS"; }

  /// The first line that the panel of this bundle prints for `action`.
  [[nodiscard]] std::string resultOf(const std::string& action) const {
    return firstLineOf({programs() + "/panel", action});
  }

  /// Whether its agent was ever started.
  [[nodiscard]] bool wasStarted() const { return std::filesystem::exists(programs() + "/started"); }

 private:
  TemporaryFolder folder_;
  std::string path_;
};

}  // namespace quillmark::test
