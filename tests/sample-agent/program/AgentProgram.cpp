// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample-agent/program/AgentProgram.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "procfs/SystemFile.h"
#include "sample-agent/RawClient.h"
#include "support/Patience.h"

namespace quillmark::sample::test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto checkInterval = std::chrono::milliseconds(5);
constexpr uid_t ordinaryUser = 1000;

/// In the child: only calls that are safe between fork and exec.
[[noreturn]] void becomeProgram(int program, int output, int errors, const char* home,
                                AgentProgram::User user) {
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  if (user == AgentProgram::User::ordinary) {
    if (geteuid() == 0 && (setgid(ordinaryUser) != 0 || setuid(ordinaryUser) != 0)) {
      _exit(99);
    }
    setenv("HOME", home, 1);
    char* const arguments[] = {const_cast<char*>("agent"), nullptr};
    // By descriptor: this user may have no access to the build folder.
    fexecve(program, arguments, environ);
  } else {
    execl(SAMPLE_AGENT_PROGRAM, SAMPLE_AGENT_PROGRAM, nullptr);
  }
  _exit(98);
}

}  // namespace

AgentProgram::AgentProgram(User user) {
  const int program = open(SAMPLE_AGENT_PROGRAM, O_RDONLY | O_CLOEXEC);
  const int output = open(files_.path("output").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  const int errors = open(files_.path("errors").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  if (geteuid() == 0 && user == User::ordinary &&
      chown(files_.root().c_str(), ordinaryUser, ordinaryUser) != 0) {
    throw std::runtime_error("owner of the home directory not changed");
  }
  pid_ = fork();
  if (pid_ == 0) {
    becomeProgram(program, output, errors, files_.root().c_str(), user);
  }
  close(program);
  close(output);
  close(errors);
  if (pid_ < 0) {
    throw std::runtime_error("no process");
  }
}

AgentProgram::~AgentProgram() {
  if (!ended_) {
    kill(pid_, SIGKILL);
    waitpid(pid_, &status_, 0);
  }
}

bool AgentProgram::hasEnded() {
  ended_ = ended_ || waitpid(pid_, &status_, WNOHANG) == pid_;
  return ended_;
}

bool AgentProgram::waitUntilReady() {
  const auto end = Clock::now() + quillmark::test::patience();
  while (!hasEnded() && Clock::now() < end) {
    if (statusOf(ask(programPort, RequestText{}.text())) == 401) {
      return true;
    }
    std::this_thread::sleep_for(checkInterval);
  }
  return false;
}

int AgentProgram::waitForEnd() {
  const auto end = Clock::now() + quillmark::test::patience();
  while (!hasEnded()) {
    if (Clock::now() > end) {
      throw std::runtime_error("the program does not end");
    }
    std::this_thread::sleep_for(checkInterval);
  }
  return WIFEXITED(status_) ? WEXITSTATUS(status_) : -WTERMSIG(status_);
}

int AgentProgram::stop(int signal) {
  kill(pid_, signal);
  return waitForEnd();
}

std::string AgentProgram::output() const {
  return readSystemFile(files_.path("output")).value_or("");
}

std::string AgentProgram::errors() const {
  return readSystemFile(files_.path("errors")).value_or("");
}

}  // namespace quillmark::sample::test
