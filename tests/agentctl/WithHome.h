// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "agentctl/ConfigFile.h"
#include "platform/TemporaryFolder.h"

namespace quillmark::test {

/// Gives each test a home directory of its own, empty at first.
class WithHome : public testing::Test {
 protected:
  WithHome() : before_(std::getenv("HOME")) { setHome(folder_.path()); }
  ~WithHome() override { setHome(before_); }

  [[nodiscard]] const std::string& home() const { return folder_.path(); }
  [[nodiscard]] std::string configFolder() const { return folder_ / ".config/quillmark"; }
  [[nodiscard]] std::string configFile() const { return configFolder() + "/config.toml"; }

  static void setHome(const std::string& path) { setenv("HOME", path.c_str(), 1); }

 private:
  TemporaryFolder folder_;
  std::string before_;
};

}  // namespace quillmark::test
