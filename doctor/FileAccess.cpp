// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FileAccess.h"

#include <array>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::doctor {

std::optional<mode_t> modeOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return std::nullopt;
  }
  return status.st_mode;
}

bool othersMayRead(mode_t mode) { return (mode & S_IROTH) != 0; }

std::string modeText(mode_t mode) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%04o", static_cast<unsigned>(mode & ALLPERMS));
  return text.data();
}

bool mayAccess(const std::string& path, int rights) {
  return faccessat(AT_FDCWD, path.c_str(), rights, AT_EACCESS) == 0;
}

}  // namespace quillmark::doctor
