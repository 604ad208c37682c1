// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace quillmark {

/// One running process, as far as this user may look into it.
struct Process {
  int pid = 0;
  int parent = 0;
  int session = 0;
  int terminal = 0;                    ///< 0 for none
  std::uint64_t startTicks = 0;        ///< when it began, in the kernel's ticks since the boot
  std::string name;                    ///< bytes, not yet text
  std::string unit;                    ///< the systemd service that it belongs to, or empty
  std::string executable;              ///< the link /proc/PID/exe; empty where it cannot be read
  std::vector<std::uint64_t> sockets;  ///< inodes of the sockets that it holds open
};

/// All processes under `procRoot` but the kernel's threads and those that have
/// ended and wait to be collected; ascending by pid.
[[nodiscard]] std::vector<Process> readProcesses(const std::string& procRoot);

/// Which process holds the socket with an inode; of several the lowest pid.
[[nodiscard]] std::unordered_map<std::uint64_t, const Process*> socketOwners(
    const std::vector<Process>& processes);

}  // namespace quillmark
