// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BundlePath.h"

#include "platform/OperatingSystem.h"

namespace quillmark {

std::string bundlePathOf(const std::string& executable) {
  auto folder = executable.substr(0, executable.rfind('/'));
  if (folder.ends_with(programsInBundle)) {
    folder.resize(folder.size() - programsInBundle.size());
  }
  return folder;
}

std::string bundlePath() { return bundlePathOf(programPath()); }

}  // namespace quillmark
