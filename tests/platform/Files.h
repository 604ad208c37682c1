// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include <sys/stat.h>

namespace quillmark::test {

/// Every byte of the file at `path`; empty if it cannot be read.
[[nodiscard]] inline std::string contentOf(const std::string& path) {
  const std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

/// The mode's permission bits, links followed; all ones if there is no file.
[[nodiscard]] inline mode_t modeOf(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : ~mode_t{0};
}

/// The names in `folder`.
[[nodiscard]] inline std::set<std::string> namesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.insert(entry.path().filename());
  }
  return names;
}

}  // namespace quillmark::test
