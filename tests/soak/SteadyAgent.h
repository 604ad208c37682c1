// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillmark::test {

/// The answers of one poll: complete answers by target.
using PollAnswers = std::map<std::string, std::string>;

/// The answers of two polls, whose lists differ in length and content.
[[nodiscard]] std::vector<PollAnswers> changingAnswers();

/// A server on the agent's port that does not record requests, in a separate process, so
/// that its resources do not count as the caller's.
///
/// Create it before the caller's first thread. It changes to the next entry of the
/// answers with each request for the status.
class SteadyAgent final {
 public:
  explicit SteadyAgent(const std::vector<PollAnswers>& answers);
  ~SteadyAgent();
  SteadyAgent(const SteadyAgent&) = delete;
  SteadyAgent& operator=(const SteadyAgent&) = delete;

 private:
  pid_t pid_ = -1;
};

}  // namespace quillmark::test
