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
  std::string name;         ///< as the system keeps it, brackets dropped
  std::string program;      ///< its executable's file name
  std::string commandLine;  ///< arguments joined by spaces
};

[[nodiscard]] std::vector<Process> processes();

/// Those that run an executable with the agent's name.
[[nodiscard]] std::vector<Process> agents();

/// Those with the agent's name in their command line: the shells around agents
/// too. An agent that has ended and is not yet accounted for has only its name,
/// which the probe's tool takes for the command line.
[[nodiscard]] std::vector<Process> bearersOfTheName();

/// Starts a process that is no agent but has the name amidst its command line; it
/// lasts until it is ended. Whether that worked.
[[nodiscard]] bool startBearerOfTheName();

/// Whether nobody is there but this process and those above it. Looks twice: a
/// shell that forks and ends in the midst of a look is missed with all it leaves.
[[nodiscard]] bool isAlone();

/// Those that this process has to account for, zombies included.
[[nodiscard]] std::vector<Process> children();

/// Ends every bearer of the name, by its id, and waits until it is gone.
void endBearersOfTheName();

}  // namespace quillmark::test
