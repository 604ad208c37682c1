// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/SystemPaths.h"

#include <cstdlib>

namespace quillmark::sample {

SystemPaths systemPaths(const std::string& home) {
  SystemPaths paths;
  if (!home.empty()) {
    paths.otherApplications.push_back(home + "/.local/share/applications");
    paths.otherApplications.push_back(home + "/.local/share/flatpak/exports/share/applications");
  }
  paths.otherApplications.insert(
      paths.otherApplications.end(),
      {"/usr/local/share/applications", "/var/lib/flatpak/exports/share/applications",
       "/var/lib/snapd/desktop/applications"});
  const char* const searchPath = std::getenv("PATH");
  paths.searchPath = searchPath != nullptr ? searchPath : "";
  return paths;
}

}  // namespace quillmark::sample
