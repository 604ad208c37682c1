// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the Settings tab's buttons do, and what the panel reads by itself, one a
// run: prints the line that the user would read, or what was read. Under the
// agent's file name it stands in for the agent.

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

std::string told(const boost::system::error_code& error) {
  return error ? "Error: " + error.message() : "ok";
}

std::string told(const ImportResult& result) {
  return result.outcome == ImportResult::Outcome::missingAgentSection ? "missing [agent] section"
                                                                      : told(result.error);
}

std::string told(const ConfigEntries& entries) {
  return entries.apiKey.value_or("none") + " at " + entries.serverUrl.value_or("none");
}

std::string act(const std::string& action, const std::string& argument) {
  if (action == "start") {
    return told(startAgentProcess());
  }
  if (action == "stop") {
    return told(stopAgentProcess());
  }
  if (action == "probe") {
    boost::system::error_code error;
    const bool running = probeAgentProcess(error);
    return error ? told(error) : running ? "running" : "not running";
  }
  if (action == "save") {
    return told(saveConfig("https://new.example", argument));
  }
  if (action == "import") {
    return told(importConfigFile(argument));
  }
  if (action == "read-back") {
    return told(readCurrentConfig());
  }
  if (action == "token") {
    return readAccessToken().value_or("none");
  }
  if (action == "name") {
    return computerName().value_or("none");
  }
  return "no such action";
}

/// Leaves a trace where it was started, talks and stays until it is ended.
[[noreturn]] void standInForTheAgent() {
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
    standInForTheAgent();
  }
  if (count < 2) {
    return 2;
  }
  // Whoever traces this program's system calls finds the action between two
  // of a kind that nothing else makes.
  getppid();
  const auto line = act(arguments[1], count > 2 ? arguments[2] : "");
  getppid();
  std::puts(line.c_str());
}
