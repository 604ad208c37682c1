// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BundlePath.h"

#include <filesystem>
#include <string_view>

namespace quillmark {
namespace {

constexpr std::string_view programsFolder = "/Contents/MacOS";

}  // namespace

std::string bundlePathOf(const std::string& executable) {
  auto folder = executable.substr(0, executable.rfind('/'));
  if (folder.ends_with(programsFolder)) {
    folder.resize(folder.size() - programsFolder.size());
  }
  return folder;
}

std::string bundlePath() {
  std::error_code unknown;
  return bundlePathOf(std::filesystem::read_symlink("/proc/self/exe", unknown).string());
}

}  // namespace quillmark
