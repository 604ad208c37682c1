// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillmark {

/// The options that a program accepts besides `--help` and `--version`.
/// Arguments that are not options are errors.
struct CommandLineRules {
  std::string program;
  std::string version;
  /// The full output of `--help`.
  std::string help;
  /// Options without a value, by their long names.
  std::vector<std::string> flags;
  /// Options with a value. Accepted and dropped: Qt reads them from `argv`.
  /// If there are any, all long options may begin with a single dash, because a session
  /// manager writes them like that.
  std::vector<std::string> valueOptions;
};

struct CommandLine {
  /// Set when the program must exit now; all output is already written.
  std::optional<int> exitCode;
  /// The flags of the rules that were given.
  std::vector<std::string> flags;

  [[nodiscard]] bool has(const std::string& flag) const;
};

/// Exit code for a wrong command line.
inline constexpr int usageError = 2;

/// Parses the arguments of `main`. Answers `--help` and `--version` on standard
/// output, and reports wrong arguments, with the help, on standard error.
/// Call at the start of a program, before it starts threads.
[[nodiscard]] CommandLine readCommandLine(int argc, char* argv[], const CommandLineRules& rules);

}  // namespace quillmark
