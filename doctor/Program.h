// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "procfs/ProcessCommands.h"

namespace quillmark::doctor {

/// What a process is to the panel's way of finding the agent.
enum class Kind {
  agent,    ///< runs a program with the agent's file name
  starter,  ///< the shell of Start Agent, which waits for its agent to end
  ended,    ///< ended, but its parent has not taken notice
  other,
};

[[nodiscard]] Kind kindOf(const ProcessCommand& process);

/// The file name of the program that the process runs; by its own account where
/// the system does not tell.
[[nodiscard]] std::string programName(const ProcessCommand& process);

inline constexpr auto procRoot = "/proc";

}  // namespace quillmark::doctor
