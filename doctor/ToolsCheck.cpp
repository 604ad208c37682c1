// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ToolsCheck.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <boost/algorithm/string/join.hpp>

#include <unistd.h>

#include "FileAccess.h"
#include "agentctl/AgentProcess.h"
#include "procfs/Text.h"

namespace quillmark::doctor {
namespace {

/// Whether a shell could run `name`: a path, or a program to find in PATH.
bool isRunnable(const std::string& name) {
  if (name.find('/') != std::string::npos) {
    return mayAccess(name, X_OK);
  }
  const char* const variable = std::getenv("PATH");
  const std::string_view folders = variable != nullptr ? variable : "/usr/bin:/bin";
  const auto all = split(folders, ':');
  return std::any_of(all.begin(), all.end(), [&](std::string_view folder) {
    return mayAccess((folder.empty() ? "." : std::string(folder)) + '/' + name, X_OK);
  });
}

}  // namespace

void checkTools(Findings& findings) {
  const auto probe = probeCommand();
  // The first word of the line that the shell runs is a program, too: `pgrep`.
  const auto& line = probe.arguments.back();
  const std::vector<std::string> tools = {probe.executable, line.substr(0, line.find(' ')),
                                          stopCommand().executable};
  std::vector<std::string> missing;
  std::copy_if(tools.begin(), tools.end(), std::back_inserter(missing),
               [](const std::string& tool) { return !isRunnable(tool); });

  Finding finding;
  finding.check = "tools";
  const auto names = boost::algorithm::join(missing, ", ");
  if (missing.empty()) {
    finding.add(Mark::ok, boost::algorithm::join(tools, ", "));
  } else {
    finding.add(Mark::wrong,
                names + " not there, so the Settings tab cannot start, stop or find an agent",
                "Install the package that has " + names + ".");
  }
  findings.push_back(std::move(finding));
}

}  // namespace quillmark::doctor
