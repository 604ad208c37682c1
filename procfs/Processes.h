// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmark {

/// One running process, as far as this user may read it.
struct Process {
  int pid = 0;
  int parent = 0;
  int session = 0;
  int terminal = 0;                    ///< 0 for none
  std::uint64_t startTicks = 0;        ///< start time in clock ticks since boot
  std::string name;                    ///< bytes, not yet text
  std::string unit;                    ///< the systemd service that it belongs to, or empty
  std::string executable;              ///< the link /proc/PID/exe; empty where it cannot be read
  std::vector<std::uint64_t> sockets;  ///< inodes of its open sockets
};

/// How `executable` ends if the file was removed, as by an update.
inline constexpr std::string_view deletedSuffix = " (deleted)";

/// All processes under `procRoot` except kernel threads and zombies, ascending by
/// pid.
[[nodiscard]] std::vector<Process> readProcesses(const std::string& procRoot);

/// Maps a socket's inode to the process that holds the socket; to the lowest pid if
/// several do. The pointers point into `processes`.
[[nodiscard]] std::unordered_map<std::uint64_t, const Process*> socketOwners(
    const std::vector<Process>& processes);

}  // namespace quillmark
