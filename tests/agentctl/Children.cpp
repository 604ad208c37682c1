// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/Children.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmark::test {
// Reads one line and does not wait for the end of the output: a process that the child
// started may keep it open.
std::string firstLineOf(const std::vector<std::string>& program) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    return std::strerror(errno);
  }
  std::vector<char*> arguments;
  for (const auto& argument : program) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execv(arguments.front(), arguments.data());
    _exit(127);
  }
  close(ends[1]);
  std::string line;
  for (char c = 0; read(ends[0], &c, 1) == 1 && c != '\n';) {
    line += c;
  }
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return line;
}

std::string elsewhere(const std::vector<std::string>& options,
                      const std::vector<std::string>& action) {
  std::vector<std::string> program{"/usr/bin/bwrap", "--dev-bind", "/", "/"};
  program.insert(program.end(), options.begin(), options.end());
  program.insert(program.end(), {"--", QUILLMARK_AGENTCTL_DRIVER});
  program.insert(program.end(), action.begin(), action.end());
  return firstLineOf(program);
}

}  // namespace quillmark::test
