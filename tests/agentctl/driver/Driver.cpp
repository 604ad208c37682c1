// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Does what one button of the Settings tab does, or reads what the panel reads, and
// prints the message for the user or the value. Under the agent's file name it acts as
// the agent.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "agentctl/AgentProcess.h"
#include "agentctl/ConfigFile.h"
#include "agentctl/ConfigReadBack.h"
#include "client/AccessToken.h"
#include "platform/ComputerName.h"

namespace {

using namespace quillmark;

std::string textOf(const boost::system::error_code& error) {
  return error ? "Error: " + error.message() : "ok";
}

std::string textOf(const ImportResult& result) {
  return result.outcome == ImportResult::Outcome::missingAgentSection ? "missing [agent] section"
                                                                      : textOf(result.error);
}

std::string textOf(const ConfigEntries& entries) {
  return entries.apiKey.value_or("none") + " at " + entries.serverUrl.value_or("none");
}

std::string act(const std::string& action, const std::string& argument) {
  if (action == "start") {
    return textOf(startAgentProcess());
  }
  if (action == "stop") {
    return textOf(stopAgentProcess());
  }
  if (action == "probe") {
    boost::system::error_code error;
    const bool running = probeAgentProcess(error);
    return error ? textOf(error) : running ? "running" : "not running";
  }
  if (action == "save") {
    return textOf(saveConfig("https://new.example", argument));
  }
  if (action == "import") {
    return textOf(importConfigFile(argument));
  }
  if (action == "read-back") {
    return textOf(readCurrentConfig());
  }
  if (action == "token") {
    return readAccessToken().value_or("none");
  }
  if (action == "name") {
    return computerName().value_or("none");
  }
  return "no such action";
}

/// Creates a file where it was started, prints, and runs until it is ended.
[[noreturn]] void actAsTheAgent() {
  std::ofstream("started") << "yes";
  std::puts("to the output");
  std::fputs("to the errors\n", stderr);
  std::fflush(stdout);
  for (;;) {
    pause();
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (std::filesystem::path(arguments[0]).filename() == "tovel-agent") {
    actAsTheAgent();
  }
  if (count < 2) {
    return 2;
  }
  // Marks the action in a trace of the system calls: nothing else calls getppid().
  getppid();
  const auto line = act(arguments[1], count > 2 ? arguments[2] : "");
  getppid();
  std::puts(line.c_str());
}
