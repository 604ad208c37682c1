// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/ProcessCommands.h"

#include <algorithm>

#include "procfs/Number.h"
#include "procfs/SystemFile.h"

namespace quillmark {

ProcessCommand readProcessCommand(const std::string& procRoot, int pid) {
  const std::string folder = procRoot + '/' + std::to_string(pid);
  ProcessCommand command{pid, readSystemFile(folder + "/cmdline").value_or("")};
  if (command.text.empty()) {
    command.hasArguments = false;
    command.text = readSystemFile(folder + "/comm").value_or("");
    command.text.erase(command.text.find_last_not_of('\n') + 1);
    return command;
  }
  // A program that overwrites its title fills the rest with zeros.
  command.text.erase(command.text.find_last_not_of('\0') + 1);
  std::replace(command.text.begin(), command.text.end(), '\0', ' ');
  return command;
}

std::vector<ProcessCommand> readProcessCommands(const std::string& procRoot) {
  std::vector<ProcessCommand> commands;
  for (const auto& name : namesIn(procRoot)) {
    if (const auto pid = parseNumber<int>(name)) {
      commands.push_back(readProcessCommand(procRoot, *pid));
    }
  }
  std::sort(commands.begin(), commands.end(),
            [](const auto& a, const auto& b) { return a.pid < b.pid; });
  return commands;
}

}  // namespace quillmark
