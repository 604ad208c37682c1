// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TokenFiles.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace quillmark::test {

std::string systemTokenPath() { return "/var/run/quillmark/token"; }

std::string homeTokenPath() { return std::string(std::getenv("HOME")) + "/.quillmark/token"; }

void writeFile(const std::string& path, std::string_view content) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << content;
}

void removeTokens() {
  std::filesystem::remove_all(systemTokenPath());
  std::filesystem::remove_all(homeTokenPath());
}

}  // namespace quillmark::test
