// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Finding.h"

#include <algorithm>

namespace quillmark::doctor {

void Finding::add(Mark clauseMark, const std::string& clause, const std::string& clauseStep) {
  text += (text.empty() || text.ends_with(": ") ? "" : "; ") + clause;
  if (clauseMark > mark || step.empty()) {
    step = clauseStep;
  }
  mark = std::max(mark, clauseMark);
}

bool isWrong(const Finding& finding) { return finding.mark == Mark::wrong; }

std::string nameOf(Mark mark) {
  switch (mark) {
    case Mark::ok:
      return "ok";
    case Mark::note:
      return "note";
    case Mark::wrong:
      break;
  }
  return "wrong";
}

boost::json::value textOrNull(const std::string& text) {
  return text.empty() ? boost::json::value(nullptr) : boost::json::value(text);
}

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace quillmark::doctor
