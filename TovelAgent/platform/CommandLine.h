// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillmark {

/// What a program takes on its command line beside `--help` and `--version`.
/// Nothing that is no option is taken.
struct CommandLineRules {
  std::string program;
  std::string version;
  /// All of what `--help` prints.
  std::string help;
  /// Options without a value, by their long names.
  std::vector<std::string> flags;
  /// Options with a value that are for somebody else to read. These may also
  /// begin with a single dash, as toolkits write them.
  std::vector<std::string> passedOn;
};

struct CommandLine {
  /// Set when the program is done, with everything said that there is to say.
  std::optional<int> exitCode;
  /// Those of the rules' flags that were given.
  std::vector<std::string> flags;

  [[nodiscard]] bool has(const std::string& flag) const;
};

/// Exit code of a program that was called wrongly.
inline constexpr int usageError = 2;

/// Reads what `main` was given. Answers `--help` and `--version` on standard
/// output, and what the rules do not know on standard error. Arguments may
/// change their order. At the start of a program, before its threads.
[[nodiscard]] CommandLine readCommandLine(int argc, char* argv[], const CommandLineRules& rules);

}  // namespace quillmark
