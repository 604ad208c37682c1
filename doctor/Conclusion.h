// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "EndpointCheck.h"
#include "Finding.h"
#include "PortCheck.h"

namespace quillmark::doctor {

/// The summary of all findings.
struct Conclusion {
  bool isOnline = false;  ///< whether a panel that starts now shows a status
  std::string text;
  std::string step;  ///< the one thing to do first; empty when there is nothing to do
};

/// What the panel shows and why, in one sentence, and the one thing to do first: what
/// keeps the agent from starting if nothing listens on its port, else the first step of
/// the worst findings.
[[nodiscard]] Conclusion conclude(const Findings& findings, const PanelData& data,
                                  const Port& port);

}  // namespace quillmark::doctor
