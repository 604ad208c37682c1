// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/ProcessCommands.h"

#include <algorithm>

#include "procfs/Number.h"
#include "procfs/SystemFile.h"

namespace quillmark {

ProcessCommand readProcessCommand(const std::string& procRoot, int pid) {
  const std::string folder = pathIn(procRoot, std::to_string(pid));
  ProcessCommand line{pid, readSystemFile(folder + "/cmdline").value_or("")};
  if (line.text.empty()) {
    line.arguments = ProcessCommand::Arguments::none;
    line.text = readSystemFile(folder + "/comm").value_or("");
    line.text.erase(line.text.find_last_not_of('\n') + 1);
    return line;
  }
  // A program that rewrites its title pads the rest with zeros.
  line.text.erase(line.text.find_last_not_of('\0') + 1);
  std::replace(line.text.begin(), line.text.end(), '\0', ' ');
  return line;
}

std::vector<ProcessCommand> readProcessCommands(const std::string& procRoot) {
  std::vector<ProcessCommand> lines;
  for (const auto& name : namesIn(procRoot)) {
    if (const auto pid = parseNumber<int>(name)) {
      lines.push_back(readProcessCommand(procRoot, *pid));
    }
  }
  std::sort(lines.begin(), lines.end(), [](const auto& a, const auto& b) { return a.pid < b.pid; });
  return lines;
}

}  // namespace quillmark
