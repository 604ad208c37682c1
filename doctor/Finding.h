// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <boost/json/object.hpp>
#include <boost/json/value.hpp>

namespace quillmark::doctor {

/// Severity of a finding, in ascending order.
enum class Mark {
  ok,
  note,   ///< harmless, but good to know
  wrong,  ///< something cannot work, or a secret is exposed
};

/// What one check found: one line of text for a person, and the same as JSON facts.
struct Finding {
  std::string check;  ///< a fixed name, such as "token-home"
  Mark mark = Mark::ok;
  std::string text;  ///< sanitized, safe on a terminal
  std::string step;  ///< what to do about it; empty when there is nothing to do
  boost::json::object facts;

  /// Appends a clause to `text`, which may be only "subject: " so far. `mark` becomes the worse
  /// of both marks; `step` is the step of the worst clause so far.
  void add(Mark clauseMark, const std::string& clause, const std::string& clauseStep = {});
};

using Findings = std::vector<Finding>;

[[nodiscard]] bool isWrong(const Finding& finding);
[[nodiscard]] std::string nameOf(Mark mark);

/// `text` as JSON; null if it is empty.
[[nodiscard]] boost::json::value textOrNull(const std::string& text);

/// "1 alert", "2 alerts".
[[nodiscard]] std::string counted(std::size_t count, const std::string& noun);

}  // namespace quillmark::doctor
