// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/Processes.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <sstream>

#include <unistd.h>

#include "platform/ChildProcess.h"
#include "platform/Files.h"
#include "platform/Waiting.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;

Process processAt(const fs::path& folder) {
  Process process;
  process.id = std::stoi(folder.filename());
  // The name before the state is in parentheses and may contain any character.
  const std::string stat = contentOf(folder / "stat");
  const auto nameStart = std::min(stat.find('(') + 1, stat.size());
  process.name = stat.substr(nameStart, stat.rfind(')') - nameStart);
  std::istringstream fields(stat.substr(std::min(stat.rfind(')') + 1, stat.size())));
  pid_t group = 0;
  fields >> process.state >> process.parent >> group >> process.session;
  std::error_code unreadable;
  process.program = fs::read_symlink(folder / "exe", unreadable).filename();
  process.commandLine = contentOf(folder / "cmdline");
  std::replace(process.commandLine.begin(), process.commandLine.end(), '\0', ' ');
  return process;
}

template <class Condition>
std::vector<Process> processesWhere(Condition condition) {
  auto found = processes();
  std::erase_if(found, [&](const Process& process) { return !condition(process); });
  return found;
}

}  // namespace

std::vector<Process> processes() {
  std::vector<Process> all;
  for (const auto& entry : fs::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; })) {
      all.push_back(processAt(entry.path()));
    }
  }
  return all;
}

std::vector<Process> agents() {
  return processesWhere([](const Process& process) { return process.program == agentName; });
}

std::vector<Process> processesWithTheName() {
  return processesWhere([](const Process& process) {
    return process.commandLine.find(agentName) != std::string::npos || process.name == agentName;
  });
}

bool startProcessWithTheName() {
  return !startDetached(
      {"/bin/bash",
       {"-c", "while :; do sleep 0.1; done", "notes/" + std::string(agentName) + ".txt"}});
}

bool isAlone() {
  const auto onlyThoseAbove = [] {
    auto all = processes();
    for (pid_t above = getpid(); above != 0;) {
      const auto at = std::find_if(all.begin(), all.end(),
                                   [&](const Process& process) { return process.id == above; });
      if (at == all.end()) {
        break;
      }
      above = at->parent;
      all.erase(at);
    }
    return all.empty();
  };
  return onlyThoseAbove() && onlyThoseAbove();
}

std::vector<Process> children() {
  return processesWhere([](const Process& process) { return process.parent == getpid(); });
}

void endProcessesWithTheName() {
  static_cast<void>(waitUntil([] {
    for (const auto& process : processesWithTheName()) {
      kill(process.id, SIGKILL);
    }
    return isAlone();
  }));
}

}  // namespace quillmark::test
