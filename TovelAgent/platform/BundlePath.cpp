// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BundlePath.h"

#include <string_view>

#include "platform/OperatingSystem.h"

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

std::string bundlePath() { return bundlePathOf(programPath()); }

}  // namespace quillmark
