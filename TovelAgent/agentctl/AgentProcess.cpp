// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/AgentProcess.h"

#include <utility>

#include "platform/BundlePath.h"
#include "platform/FileError.h"
#include "platform/HomeDirectory.h"

namespace quillmark {
namespace {

constexpr auto shell = "/bin/bash";

}  // namespace

bool isQuotable(std::string_view path) { return path.find('\'') == std::string_view::npos; }

bool hasShellOperator(std::string_view path) {
  return path.find_first_of("$`;&|<>()\n") != std::string_view::npos;
}

Command startCommand(const std::string& bundle, const std::string& home) {
  std::string line = "cd '" + bundle;
  line.append(programsInBundle).append("' && ./").append(agentFileName);
  line.append(" > ").append(home).append(agentLogInHome).append(" 2>&1 &");
  return {shell, {"-c", std::move(line)}};
}

Command stopCommand() { return {"/usr/bin/pkill", {"-f", std::string(agentFileName)}}; }

// Keep it a single command: bash then replaces itself with pgrep. Otherwise pgrep would
// always find the shell, whose command line contains the name.
Command probeCommand() { return {shell, {"-c", "pgrep -f " + std::string(agentFileName)}}; }

boost::system::error_code startAgentProcess() {
  const auto bundle = bundlePath();
  if (!isQuotable(bundle)) {
    return FileError::unquotablePath;
  }
  const auto home = homeDirectory();
  if (hasShellOperator(home)) {
    return FileError::shellOperatorInPath;
  }
  return startDetached(startCommand(bundle, home));
}

boost::system::error_code stopAgentProcess() { return runSilently(stopCommand()).error(); }

bool probeAgentProcess(boost::system::error_code& error) {
  const auto status = runSilently(probeCommand());
  error = status.error();
  return status && *status == 0;
}

}  // namespace quillmark
