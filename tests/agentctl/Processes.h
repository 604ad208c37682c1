// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace quillmark::test {

/// The agent's file name, which stop and probe look for in command lines.
inline constexpr auto agentName = "tovel-agent";

/// A process as /proc shows it.
struct Process {
  pid_t id = 0;
  pid_t parent = 0;
  char state = '?';
  pid_t session = 0;
  std::string name;         ///< as in /proc/PID/stat, without parentheses
  std::string program;      ///< its executable's file name
  std::string commandLine;  ///< arguments joined by spaces
};

[[nodiscard]] std::vector<Process> processes();

/// Those that run an executable with the agent's name.
[[nodiscard]] std::vector<Process> agents();

/// Those with the agent's name in their command line, including the shells that start
/// agents. For a zombie, which has no command line, the probe's tool uses the name.
[[nodiscard]] std::vector<Process> processesWithTheName();

/// Starts a process that is no agent but has the name in its command line, and runs
/// until it is killed. False if that fails.
[[nodiscard]] bool startProcessWithTheName();

/// Whether only this process and its ancestors exist. Checks twice: one check may miss a
/// shell that forks and ends meanwhile, and its children.
[[nodiscard]] bool isAlone();

/// The children of this process, including zombies.
[[nodiscard]] std::vector<Process> children();

/// Kills every process with the name, by its id, and waits for its end.
void endProcessesWithTheName();

}  // namespace quillmark::test
