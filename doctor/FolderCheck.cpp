// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FolderCheck.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

#include "FileAccess.h"
#include "agentctl/AgentProcess.h"
#include "platform/HomeDirectory.h"

namespace quillmark::doctor {
namespace {

constexpr auto startByService =
    "Start the agent by its own service: Start Agent cannot cope with this home path.";

/// Whether a shell ends an unquoted word at `c`.
bool isBlank(char c) { return c == ' ' || c == '\t'; }

bool isShellOperator(char c) { return hasShellOperator({&c, 1}); }

/// Whether a shell does not take an unquoted `c` literally.
bool isShellSpecial(char c) {
  constexpr std::string_view special = "\\\"'*?[]{}";
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F || isBlank(c) || isShellOperator(c) ||
         special.find(c) != std::string_view::npos;
}

/// What Start Agent does in a home path with the special character `odd`.
std::string effectOf(const std::string& home, std::string::const_iterator odd,
                     const TextSanitizer& sanitize) {
  if (isShellOperator(*odd)) {
    return "so Start Agent does nothing: a shell could run a part of the path as a command";
  }
  if (isBlank(*odd)) {
    return "so Start Agent writes the log to " + sanitize({home.begin(), odd});
  }
  return "which breaks Start Agent: the path of the log is not quoted";
}

void judgeHome(Findings& findings, const std::string& home, const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "home";
  finding.facts["path"] = sanitize(home);
  finding.text = (home.empty() ? "/" : sanitize(home)) + ": ";
  const auto odd = std::find_if(home.begin(), home.end(),
                                hasShellOperator(home) ? isShellOperator : isShellSpecial);
  if (odd != home.end()) {
    finding.add(Mark::wrong,
                "contains \"" + sanitize({&*odd, 1}) + "\", " + effectOf(home, odd, sanitize),
                startByService);
  } else if (!home.starts_with('/') && !home.empty()) {
    finding.add(Mark::wrong, "is not an absolute path", "Set HOME to an absolute path.");
  } else {
    finding.add(Mark::ok, "suitable for Start Agent");
  }
  findings.push_back(std::move(finding));
}

void judgeLogs(Findings& findings, const std::string& home, const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "logs";
  const std::string file = home + std::string(agentLogInHome);
  const std::string folder = file.substr(0, file.rfind('/'));
  finding.facts["path"] = sanitize(folder);
  finding.text = sanitize(folder) + ": ";
  const auto mode = modeOf(folder);
  if (!mode) {
    finding.add(Mark::wrong, "not there, and without it Start Agent starts nothing",
                "Make the folder " + sanitize(folder) + ".");
  } else if (!S_ISDIR(*mode)) {
    finding.add(Mark::wrong, "not a folder, so Start Agent starts nothing",
                "Put a folder in place of " + sanitize(folder) + ".");
  } else if (!mayAccess(folder, W_OK | X_OK)) {
    finding.add(Mark::wrong, "not writable, so Start Agent starts nothing",
                "Let the panel's user write to " + sanitize(folder) + ".");
  } else if (modeOf(file) && !mayAccess(file, W_OK)) {
    finding.add(Mark::wrong, "the log in it is not writable, so Start Agent starts nothing",
                "Let the panel's user write to " + sanitize(file) + ", or remove it.");
  } else {
    finding.add(Mark::ok, "writable");
  }
  findings.push_back(std::move(finding));
}

}  // namespace

void checkFolders(Findings& findings, const TextSanitizer& sanitize) {
  const auto home = homeDirectory();
  judgeHome(findings, home, sanitize);
  judgeLogs(findings, home, sanitize);
}

}  // namespace quillmark::doctor
