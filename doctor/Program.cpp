// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Program.h"

#include <string_view>

#include "agentctl/AgentProcess.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark::doctor {

namespace {

std::string executableOf(const CommandLine& process) {
  return pathIn(procRoot, std::to_string(process.pid)) + "/exe";
}

}  // namespace

std::string programName(const CommandLine& process) {
  auto path = readLink(executableOf(process));
  if (!path) {
    return std::string(leafOf(std::string_view(process.text).substr(0, process.text.find(' '))));
  }
  // After an update the program still runs.
  constexpr std::string_view deleted = " (deleted)";
  if (path->ends_with(deleted)) {
    path->resize(path->size() - deleted.size());
  }
  return std::string(leafOf(*path));
}

Kind kindOf(const CommandLine& process) {
  const bool isUntold = process.arguments == CommandLine::Arguments::none;
  // One that lives may have wiped its command line.
  if (isUntold && !readLink(executableOf(process))) {
    return Kind::ended;
  }
  return programName(process) == agentFileName ? Kind::agent : Kind::other;
}

}  // namespace quillmark::doctor
