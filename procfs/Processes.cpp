// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Processes.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "procfs/Number.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark {
namespace {

// The kernel truncates a program's name to this many bytes.
constexpr std::size_t maxNameLength = 15;

// PF_KTHREAD. Kernel threads are also the children of process 2, but in a container
// process 2 is an ordinary process.
constexpr unsigned long kernelThreadFlag = 0x00200000;

/// Fills the fields from /proc/PID/stat; false if the process is not to be listed.
/// The name is in parentheses and may contain any byte, even a parenthesis.
bool readStat(const std::string& folder, Process& process) {
  const auto text = readSystemFile(folder + "/stat");
  if (!text) {
    return false;
  }
  const std::size_t open = text->find('(');
  const std::size_t close = text->rfind(')');
  if (open == std::string::npos || close == std::string::npos || close < open) {
    return false;
  }
  process.name = text->substr(open + 1, close - open - 1);

  // The fields after the name: `state` is field 3 of proc(5).
  enum StatField : std::size_t { state, parent, session = 3, terminal, flags = 6, startTime = 19 };
  const auto fields = words(std::string_view(*text).substr(close + 1));
  if (fields.size() <= flags || fields[state] == "Z") {
    return false;
  }
  process.parent = parseNumber<int>(fields[parent]).value_or(0);
  process.session = parseNumber<int>(fields[session]).value_or(0);
  process.terminal = parseNumber<int>(fields[terminal]).value_or(0);
  if (fields.size() > startTime) {
    process.startTicks = parseNumber<std::uint64_t>(fields[startTime]).value_or(0);
  }
  return (parseNumber<unsigned long>(fields[flags]).value_or(0) & kernelThreadFlag) == 0;
}

/// The full name, from the command line, if the kernel truncated it; else `kept`.
std::string wholeName(const std::string& folder, const std::string& kept) {
  if (kept.size() < maxNameLength) {
    return kept;
  }
  const auto commandLine = readSystemFile(folder + "/cmdline").value_or("");
  const auto program = leafOf(split(commandLine, '\0').front());
  return program.starts_with(kept) ? std::string(program) : kept;
}

/// The innermost service among the process's control groups, or empty: a user's services
/// are inside "user@1000.service". "0::" marks version 2 of control groups, and
/// ":name=systemd:" systemd's own groups in version 1.
std::string readUnit(const std::string& folder) {
  const auto text = readSystemFile(folder + "/cgroup").value_or("");
  for (const auto line : split(text, '\n')) {
    if (!line.starts_with("0::") && line.find(":name=systemd:") == std::string_view::npos) {
      continue;
    }
    const auto groups = split(line, '/');
    const auto unit = std::find_if(groups.rbegin(), groups.rend(), [](std::string_view group) {
      return group.ends_with(".service");
    });
    if (unit != groups.rend()) {
      return std::string(*unit);
    }
  }
  return {};
}

std::vector<std::uint64_t> socketInodes(const std::string& folder) {
  constexpr std::string_view prefix = "socket:[";
  std::vector<std::uint64_t> inodes;
  const std::string descriptors = folder + "/fd/";
  for (const auto& name : namesIn(descriptors)) {
    const auto target = readLink(descriptors + name);
    if (!target || !target->starts_with(prefix) || !target->ends_with(']')) {
      continue;
    }
    const auto digits =
        std::string_view(*target).substr(prefix.size(), target->size() - prefix.size() - 1);
    if (const auto inode = parseNumber<std::uint64_t>(digits)) {
      inodes.push_back(*inode);
    }
  }
  return inodes;
}

}  // namespace

std::vector<Process> readProcesses(const std::string& procRoot) {
  std::vector<Process> processes;
  for (const auto& name : namesIn(procRoot)) {
    const auto pid = parseNumber<int>(name);
    if (!pid) {
      continue;
    }
    const std::string folder = procRoot + '/' + std::to_string(*pid);
    Process process;
    process.pid = *pid;
    if (!readStat(folder, process)) {
      continue;
    }
    process.name = wholeName(folder, process.name);
    process.unit = readUnit(folder);
    process.executable = readLink(folder + "/exe").value_or("");
    process.sockets = socketInodes(folder);
    processes.push_back(std::move(process));
  }
  std::sort(processes.begin(), processes.end(),
            [](const Process& a, const Process& b) { return a.pid < b.pid; });
  return processes;
}

std::unordered_map<std::uint64_t, const Process*> socketOwners(
    const std::vector<Process>& processes) {
  std::unordered_map<std::uint64_t, const Process*> owners;
  for (const auto& process : processes) {
    for (const auto inode : process.sockets) {
      owners.emplace(inode, &process);
    }
  }
  return owners;
}

}  // namespace quillmark
