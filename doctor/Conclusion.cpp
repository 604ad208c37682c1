// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Conclusion.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <boost/algorithm/string/join.hpp>

namespace quillmark::doctor {
namespace {

/// The checks whose failure keeps an agent from starting. The first of these that failed
/// gives the step.
constexpr std::string_view startBlockers[] = {"bundle", "program", "tools",
                                              "home",   "logs",    "config-toml"};

/// The step of the first accepted finding that has this mark and a step; else empty.
template <class Accept>
std::string firstStep(const Findings& findings, Mark mark, Accept accept) {
  const auto found = std::find_if(findings.begin(), findings.end(), [&](const Finding& finding) {
    return finding.mark == mark && !finding.step.empty() && accept(finding);
  });
  return found == findings.end() ? std::string() : found->step;
}

std::string chooseStep(const Findings& findings, const Port& port) {
  if (!port.isOpen) {
    for (const auto check : startBlockers) {
      auto step = firstStep(findings, Mark::wrong,
                            [&](const Finding& finding) { return finding.check == check; });
      if (!step.empty()) {
        return step;
      }
    }
    // A missing token needs no step of its own: the agent creates it.
    return startAgentStep;
  }
  const auto any = [](const Finding&) { return true; };
  auto step = firstStep(findings, Mark::wrong, any);
  return step.empty() ? firstStep(findings, Mark::note, any) : step;
}

}  // namespace

Conclusion conclude(const Findings& findings, const PanelData& data, const Port& port) {
  Conclusion conclusion;
  conclusion.isOnline = data.status.has_value();
  conclusion.step = chooseStep(findings, port);
  if (!data.status) {
    conclusion.text = "OFFLINE because " +
                      (port.isOpen ? data.offlineBecause : "nothing listens on the agent's port") +
                      '.';
    return conclusion;
  }
  conclusion.text = "ONLINE: the panel shows the agent's status, \"" + *data.status + '"';
  if (!data.failedParts.empty()) {
    conclusion.text += ", but no " + boost::algorithm::join(data.failedParts, ", no ");
  }
  conclusion.text += '.';
  return conclusion;
}

}  // namespace quillmark::doctor
