// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HomeDirectory.h"

#include <array>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace quillmark {
namespace {

std::string homeOfPasswordEntry() {
  passwd entry{};
  passwd* found = nullptr;
  std::array<char, 16384> texts{};
  if (getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found) != 0 || found == nullptr) {
    return {};
  }
  return found->pw_dir;
}

}  // namespace

std::string homeDirectory() {
  const char* const variable = std::getenv("HOME");
  std::string home = variable != nullptr ? variable : "";
  if (home.empty()) {
    home = homeOfPasswordEntry();
  }
  home.erase(home.find_last_not_of('/') + 1);
  return home;
}

}  // namespace quillmark
