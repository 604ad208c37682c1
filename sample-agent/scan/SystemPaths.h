// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::sample {

/// Where a scan looks; tests use their own directory trees.
struct SystemPaths {
  std::string proc = "/proc";
  std::string dpkg = "/var/lib/dpkg";
  /// The folder with the packages' desktop entries. Tests use another one; dpkg's lists
  /// name this one all the same.
  std::string packagedApplications = "/usr/share/applications";
  std::vector<std::string> otherApplications;  ///< folders of desktop entries, the first one wins
  std::vector<std::string> setUidRoots = {"/tmp", "/var/tmp", "/home"};
  std::string searchPath;  ///< folders of commands, joined by colons
};

/// The paths on this machine, for the user with home directory `home`.
[[nodiscard]] SystemPaths systemPaths(const std::string& home);

}  // namespace quillmark::sample
