// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Program.h"

#include <string_view>

#include "agentctl/AgentProcess.h"
#include "platform/BundlePath.h"
#include "platform/HomeDirectory.h"
#include "procfs/Processes.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark::doctor {

namespace {

/// The command line of the shell that Start Agent runs.
std::string starterText() {
  auto [text, arguments] = startCommand(bundlePath(), homeDirectory());
  for (const auto& argument : arguments) {
    text.append(1, ' ').append(argument);
  }
  return text;
}

}  // namespace

std::string programName(const ProcessCommand& process) {
  auto path = readLink(std::string(procRoot) + '/' + std::to_string(process.pid) + "/exe");
  if (!path) {
    return std::string(leafOf(std::string_view(process.text).substr(0, process.text.find(' '))));
  }
  if (path->ends_with(deletedSuffix)) {
    path->resize(path->size() - deletedSuffix.size());
  }
  return std::string(leafOf(*path));
}

Kind kindOf(const ProcessCommand& process) {
  if (!process.hasArguments) {
    return Kind::ended;
  }
  if (programName(process) == agentFileName) {
    return Kind::agent;
  }
  return process.text == starterText() ? Kind::starter : Kind::other;
}

}  // namespace quillmark::doctor
