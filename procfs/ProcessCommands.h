// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// What a search of whole command lines, such as `pgrep -f`, looks at.
struct ProcessCommand {
  int pid = 0;
  /// The arguments as bytes, joined by blanks; the bare name of a process that
  /// has none: a thread of the kernel, or one that ended and was not collected.
  std::string text;
  enum class Arguments { present, none } arguments = Arguments::present;
};

/// Those of all processes under `procRoot`, ascending by pid.
[[nodiscard]] std::vector<ProcessCommand> readProcessCommands(const std::string& procRoot);

/// That of one process; without text when it is gone or closed to this user.
[[nodiscard]] ProcessCommand readProcessCommand(const std::string& procRoot, int pid);

}  // namespace quillmark
