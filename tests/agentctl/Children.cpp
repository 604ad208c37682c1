// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/Children.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmark::test {
namespace {

/// The first line on the standard output of a child that runs `body`. What the
/// child started may live on and keep that output open, so nobody waits for
/// its end.
std::string firstLineFrom(const std::function<void()>& body) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) {
    return std::strerror(errno);
  }
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    body();
    std::fflush(stdout);
    _exit(0);
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

}  // namespace

std::string firstLineOf(const std::vector<std::string>& program) {
  std::vector<char*> arguments;
  for (const auto& argument : program) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  return firstLineFrom([&] {
    execv(arguments.front(), arguments.data());
    std::puts(std::strerror(errno));
  });
}

std::string inNamespaces(int flags, const std::function<std::string()>& action) {
  return firstLineFrom([&] {
    const bool unshared = unshare(flags | CLONE_NEWUSER) == 0;
    std::puts(unshared ? action().c_str() : std::strerror(errno));
  });
}

}  // namespace quillmark::test
