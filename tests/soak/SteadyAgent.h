// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quillmark::test {

/// What is answered during one poll: whole answers by target.
using PollAnswers = std::map<std::string, std::string>;

/// Two polls' worth of answers whose lists differ in length and content.
[[nodiscard]] std::vector<PollAnswers> changingAnswers();

/// A server at the agent's port that keeps nothing of what it was asked, in a
/// process of its own, so that nothing it needs counts as the caller's.
///
/// To be made before the caller's first thread. It goes by one entry of the
/// answers to the next with each request for the status.
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
