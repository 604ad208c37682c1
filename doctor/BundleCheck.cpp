// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BundleCheck.h"

#include <string>

#include <sys/stat.h>
#include <unistd.h>

#include "FileAccess.h"
#include "agentctl/AgentProcess.h"
#include "platform/BundlePath.h"

namespace quillmark::doctor {
namespace {

void judgeBundle(Findings& findings, const std::string& bundle, const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "bundle";
  finding.facts["path"] = sanitize(bundle);
  finding.text = sanitize(bundle) + ": ";
  if (!isQuotable(bundle)) {
    finding.add(Mark::wrong, "contains an apostrophe, so Start Agent does nothing",
                "Move the application to a path without an apostrophe.");
  }
  if (bundle.find(agentFileName) != std::string::npos) {
    finding.add(Mark::wrong,
                "contains the agent's file name, so the panel takes itself for an agent, and Stop "
                "Agent ends it",
                "Move the application to a path without " + std::string(agentFileName) + ".");
  }
  if (finding.mark == Mark::ok) {
    finding.add(Mark::ok, "suitable for Start Agent");
  }
  findings.push_back(std::move(finding));
}

void judgeProgram(Findings& findings, const std::string& bundle, const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "program";
  std::string path = bundle;
  path.append(programsInBundle).append("/").append(agentFileName);
  finding.facts["path"] = sanitize(path);
  finding.text = sanitize(path) + ": ";
  const auto mode = modeOf(path);
  if (!mode) {
    finding.add(Mark::wrong, "not there, so Start Agent starts nothing",
                "Install the agent as " + sanitize(path) + ".");
  } else if (!S_ISREG(*mode) || !mayAccess(path, X_OK)) {
    finding.add(Mark::wrong, "not executable, so Start Agent starts nothing",
                "Make " + sanitize(path) + " an executable program.");
  } else {
    finding.add(Mark::ok, "executable");
  }
  findings.push_back(std::move(finding));
}

}  // namespace

void checkBundle(Findings& findings, const TextSanitizer& sanitize) {
  const auto bundle = bundlePath();
  if (bundle.empty()) {
    Finding finding;
    finding.check = "bundle";
    finding.add(Mark::wrong, "the path of this program is unknown, so Start Agent starts nothing",
                "Mount /proc.");
    findings.push_back(std::move(finding));
    return;
  }
  judgeBundle(findings, bundle, sanitize);
  judgeProgram(findings, bundle, sanitize);
}

}  // namespace quillmark::doctor
