// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample::test {

inline constexpr std::uint16_t programPort = 7823;

/// The built program as a child process; ended with this object.
class AgentProgram final {
 public:
  /// Who runs it: this user, or an ordinary one, whose home directory is `home()`.
  enum class User { current, ordinary };

  explicit AgentProgram(User user = User::current);
  ~AgentProgram();
  AgentProgram(const AgentProgram&) = delete;
  AgentProgram& operator=(const AgentProgram&) = delete;

  [[nodiscard]] pid_t pid() const { return pid_; }
  [[nodiscard]] std::string home() const { return files_.root(); }

  [[nodiscard]] bool hasEnded();
  /// Waits until its port answers; false if it ends instead.
  [[nodiscard]] bool waitUntilReady();
  /// Waits for its end; the exit code, or the signal's number made negative.
  [[nodiscard]] int waitForEnd();
  [[nodiscard]] int stop(int signal);

  [[nodiscard]] std::string output() const;
  [[nodiscard]] std::string errors() const;

 private:
  FixtureTree files_;
  pid_t pid_;
  bool ended_ = false;
  int status_ = 0;
};

}  // namespace quillmark::sample::test
