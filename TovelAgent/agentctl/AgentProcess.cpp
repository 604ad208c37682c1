// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/AgentProcess.h"

#include <algorithm>

#include "platform/BundlePath.h"
#include "platform/FileError.h"
#include "platform/HomeDirectory.h"

namespace quillmark {
namespace {

constexpr auto shell = "/bin/bash";

bool staysQuoted(const std::string& path) {
  return std::none_of(path.begin(), path.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return c == '\'' || byte < 0x20 || byte == 0x7F;
  });
}

}  // namespace

Command startCommand(const std::string& bundle, const std::string& home) {
  return {shell,
          {"-c", "cd '" + bundle + "/Contents/MacOS" + "' && ./tovel-agent > " + home +
                     "/.quillmark/logs/backend.log 2>&1 &"}};
}

Command stopCommand() { return {"/usr/bin/pkill", {"-f", "tovel-agent"}}; }

Command probeCommand() { return {shell, {"-c", "pgrep -f tovel-agent"}}; }

boost::system::error_code startAgentProcess() {
  const auto bundle = bundlePath();
  if (!staysQuoted(bundle)) {
    return FileError::unquotablePath;
  }
  return startDetached(startCommand(bundle, homeDirectory()));
}

boost::system::error_code stopAgentProcess() {
  const auto status = runSilently(stopCommand());
  return status ? boost::system::error_code{} : status.error();
}

bool probeAgentProcess(boost::system::error_code& error) {
  const auto status = runSilently(probeCommand());
  error = status ? boost::system::error_code() : status.error();
  return status && *status == 0;
}

bool probeAgentProcess() {
  boost::system::error_code ignored;
  return probeAgentProcess(ignored);
}

}  // namespace quillmark
