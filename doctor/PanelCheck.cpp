// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PanelCheck.h"

#include <chrono>
#include <string>

#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include "Program.h"
#include "procfs/Processes.h"

namespace quillmark::doctor {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr auto panelFileName = "quillmark-agent";

Seconds now(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// The start time, since the epoch.
Seconds startOf(const Process& process) {
  const Seconds age = now(CLOCK_BOOTTIME) - Seconds(static_cast<double>(process.startTicks) /
                                                    static_cast<double>(sysconf(_SC_CLK_TCK)));
  return now(CLOCK_REALTIME) - age;
}

bool isNewer(const std::string& path, Seconds than) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return false;
  }
  const Seconds written = std::chrono::seconds(status.st_mtim.tv_sec) +
                          std::chrono::nanoseconds(status.st_mtim.tv_nsec);
  return written > than;
}

/// Panels of other users read other tokens.
bool isOfThisUser(int pid) {
  struct stat status {};
  const auto folder = std::string(procRoot) + '/' + std::to_string(pid);
  return stat(folder.c_str(), &status) == 0 && status.st_uid == geteuid();
}

Finding judge(const Process& panel, const TokenInUse& token) {
  Finding finding;
  finding.check = "panel";
  finding.facts["pid"] = panel.pid;
  const auto who = "process " + std::to_string(panel.pid);
  const bool isOlder = !token.path.empty() && isNewer(token.path, startOf(panel));
  finding.facts["older_than_token"] = isOlder;
  if (isOlder) {
    finding.add(Mark::note,
                who +
                    " was started before this token was written, and reads it only when a "
                    "window opens",
                "Start the panel again, so that it reads the token.");
  } else {
    finding.add(Mark::ok, who);
  }
  return finding;
}

}  // namespace

void checkPanels(Findings& findings, const TokenInUse& token) {
  const auto before = findings.size();
  for (const auto& process : readProcesses(procRoot)) {
    if (isOfThisUser(process.pid) &&
        programName(readProcessCommand(procRoot, process.pid)) == panelFileName) {
      findings.push_back(judge(process, token));
    }
  }
  if (findings.size() == before) {
    Finding finding;
    finding.check = "panel";
    finding.add(Mark::ok, "not running");
    findings.push_back(std::move(finding));
  }
}

}  // namespace quillmark::doctor
