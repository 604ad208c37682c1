// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/DeletedExecutables.h"

#include <map>
#include <string_view>

#include <sys/stat.h>

#include "platform/Utf8.h"

namespace quillmark::sample {
namespace {

constexpr std::string_view memoryFilePrefix = "/memfd:";

/// The processes of one executable that was removed.
struct Removed {
  bool isReplaced = false;  ///< another file has its path
  std::vector<const Process*> processes;
};

bool exists(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

std::string describe(const std::vector<const Process*>& processes) {
  const Process& first = *processes.front();
  std::string text = "Process " + std::to_string(first.pid) + " (" + asUtf8(first.name) + ')';
  const std::size_t others = processes.size() - 1;
  if (others > 0) {
    text += " and " + std::to_string(others) + (others == 1 ? " other" : " others");
  }
  return text;
}

ThreatAlert alertOn(const std::string& path, const Removed& removed) {
  const auto& processes = removed.processes;
  const std::string shown = asUtf8(path);
  const std::string verb = processes.size() == 1 ? " runs" : " run";
  ThreatAlert alert;
  alert.alert_type = "Deleted executable";
  alert.file_path = shown;
  if (path.starts_with(memoryFilePrefix)) {
    alert.alert_type = "Fileless program";
    alert.severity = "high";
    alert.title = "A program runs from memory only: " + shown;
    alert.description = describe(processes) + verb + " from memory, with no file behind it.";
  } else if (removed.isReplaced) {
    alert.severity = "low";
    alert.title = "A replaced program still runs: " + shown;
    alert.description = describe(processes) + verb + " an older version of " + shown +
                        ", which has been replaced since. Restart the program to run the new one.";
  } else {
    alert.severity = "high";
    alert.title = "A deleted program still runs: " + shown;
    alert.description = describe(processes) + verb + " from " + shown + ", which has been deleted.";
  }
  return alert;
}

}  // namespace

std::vector<ThreatAlert> deletedExecutables(const std::vector<Process>& processes,
                                            const std::string& procRoot) {
  std::map<std::string, Removed> byPath;
  for (const auto& process : processes) {
    const std::string& link = process.executable;
    if (!link.ends_with(deletedSuffix)) {
      continue;
    }
    const std::string path = link.substr(0, link.size() - deletedSuffix.size());
    // The file system that the process sees, which may be a container's. With the slash at
    // the end lstat() follows the link.
    const std::string root = procRoot + '/' + std::to_string(process.pid) + "/root/";
    const bool isReplaced = exists(root + path);
    // A file's real name may end in " (deleted)", too. The root is checked last: if it is
    // gone, the process has ended, and what was found of its files means nothing.
    if (!exists(root + link) && exists(root)) {
      byPath.try_emplace(path, Removed{isReplaced, {}}).first->second.processes.push_back(&process);
    }
  }

  std::vector<ThreatAlert> alerts;
  alerts.reserve(byPath.size());
  for (const auto& [path, removed] : byPath) {
    alerts.push_back(alertOn(path, removed));
  }
  return alerts;
}

}  // namespace quillmark::sample
