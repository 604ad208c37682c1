// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "procfs/ProcessCommands.h"

namespace quillmark::doctor {

/// The kinds of processes that have the agent's file name on their command line, and so
/// are matched when the panel searches for the agent.
enum class Kind {
  agent,    ///< runs a program with the agent's file name
  starter,  ///< the shell of Start Agent, which waits for its agent to end
  ended,    ///< a zombie: ended, but its parent has not waited for it
  other,
};

/// The kind of `process`, which may be any: `other` includes those that the search does
/// not match.
[[nodiscard]] Kind kindOf(const ProcessCommand& process);

/// The file name of the program that the process runs; taken from its command line
/// where the link /proc/PID/exe cannot be read.
[[nodiscard]] std::string programName(const ProcessCommand& process);

inline constexpr auto procRoot = "/proc";

}  // namespace quillmark::doctor
