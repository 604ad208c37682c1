// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Examination.h"

#include <iterator>
#include <utility>

#include "BundleCheck.h"
#include "ConfigCheck.h"
#include "EndpointCheck.h"
#include "FolderCheck.h"
#include "PanelCheck.h"
#include "PortCheck.h"
#include "ProbeCheck.h"
#include "TextSanitizer.h"
#include "TokenCheck.h"
#include "ToolsCheck.h"

namespace quillmark::doctor {

Report examine() {
  Report report;
  auto& findings = report.findings;
  TextSanitizer sanitize;
  const auto token = checkTokens(findings, sanitize);
  // Reported later, but its keys must be hidden before any command line is shown.
  Findings config;
  checkConfig(config, sanitize);

  const auto port = checkPort(findings, sanitize);
  const auto data = checkEndpoints(findings, token, port, sanitize);
  findings.insert(findings.end(), std::make_move_iterator(config.begin()),
                  std::make_move_iterator(config.end()));
  checkFolders(findings, sanitize);
  checkBundle(findings, sanitize);
  checkTools(findings);
  checkProbe(findings, port, sanitize);
  checkPanels(findings, token);
  report.conclusion = conclude(findings, data, port);
  return report;
}

}  // namespace quillmark::doctor
