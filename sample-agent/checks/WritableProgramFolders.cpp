// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/WritableProgramFolders.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include <sys/stat.h>

#include "platform/Utf8.h"
#include "procfs/Text.h"

namespace quillmark::sample {
namespace {

ThreatAlert alertOn(std::string_view folder) {
  const std::string shown = asUtf8(folder);
  ThreatAlert alert;
  alert.alert_type = "Writable program folder";
  alert.severity = "high";
  alert.title = "Every user may write to the program folder " + shown;
  alert.description = shown +
                      " is in the search path for commands and writable for every user, "
                      "so anyone can place a program there that others run.";
  alert.file_path = shown;
  return alert;
}

}  // namespace

std::vector<ThreatAlert> writableProgramFolders(std::string_view searchPath) {
  std::vector<ThreatAlert> alerts;
  std::set<std::pair<dev_t, ino_t>> seen;
  for (const auto folder : split(searchPath, ':')) {
    struct stat status {};
    if (!folder.starts_with('/') || stat(std::string(folder).c_str(), &status) != 0) {
      continue;
    }
    const bool isWritable = S_ISDIR(status.st_mode) && (status.st_mode & S_IWOTH) != 0;
    if (isWritable && seen.emplace(status.st_dev, status.st_ino).second) {
      alerts.push_back(alertOn(folder));
    }
  }
  return alerts;
}

}  // namespace quillmark::sample
