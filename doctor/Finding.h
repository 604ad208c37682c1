// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <boost/json/object.hpp>

namespace quillmark::doctor {

/// How much a finding matters, the least first.
enum class Mark {
  ok,
  note,   ///< nothing to worry about, but good to know
  wrong,  ///< keeps something from working, or a secret from being one
};

/// What one check found: one line for a person, and the same as facts.
struct Finding {
  std::string check;  ///< a fixed name, such as "token-home"
  Mark mark = Mark::ok;
  std::string text;  ///< harmless on a terminal
  std::string step;  ///< what to do about it; empty when there is nothing to do
  boost::json::object facts;

  /// Adds a sentence behind those that are there, or behind "subject: ". The mark becomes the worse
  /// of both, and the step is that of the worst sentence so far.
  void say(Mark how, const std::string& sentence, const std::string& whatToDo = {});
};

using Findings = std::vector<Finding>;

/// What all findings come to.
struct Conclusion {
  bool isOnline = false;  ///< whether a panel that starts now shows a status
  std::string text;
  std::string step;  ///< the one thing to do first; empty when there is nothing to do
};

struct Report {
  Findings findings;
  Conclusion conclusion;
};

[[nodiscard]] bool isWrong(const Finding& finding);
[[nodiscard]] std::string nameOf(Mark mark);

/// "1 alert", "2 alerts".
[[nodiscard]] std::string counted(std::size_t count, const std::string& noun);

}  // namespace quillmark::doctor
