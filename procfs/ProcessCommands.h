// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// A process's command line as a search such as `pgrep -f` sees it.
struct ProcessCommand {
  int pid = 0;
  /// The arguments as bytes, joined by spaces; the program's name for a process
  /// without arguments: a kernel thread or a zombie.
  std::string text;
  bool hasArguments = true;
};

/// The command lines of all processes under `procRoot`, ascending by pid.
[[nodiscard]] std::vector<ProcessCommand> readProcessCommands(const std::string& procRoot);

/// The command line of one process; the text is empty if the process has ended or
/// this user may not read it.
[[nodiscard]] ProcessCommand readProcessCommand(const std::string& procRoot, int pid);

}  // namespace quillmark
