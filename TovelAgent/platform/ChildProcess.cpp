// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/OperatingSystem.h"
#include "platform/ProcessLimits.h"
#include "platform/SystemError.h"

namespace quillmark {
namespace {

using boost::system::error_code;

/// The settings in which a child process differs from this one.
class SpawnSetup final {
 public:
  SpawnSetup() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawnattr_init(&attributes_);
    // The child must not inherit this process's sockets or signal settings.
    inheritStandardStreamsOnly(actions_);
    sigset_t signals{};
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
  }
  ~SpawnSetup() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  SpawnSetup(const SpawnSetup&) = delete;
  SpawnSetup& operator=(const SpawnSetup&) = delete;

  void discardOutput() {
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
      posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_WRONLY, 0);
    }
  }
  void useNewSession() { flags_ |= POSIX_SPAWN_SETSID; }

  [[nodiscard]] error_code spawn(const Command& command, pid_t& child) {
    posix_spawnattr_setflags(&attributes_, flags_);
    std::vector<char*> arguments{const_cast<char*>(command.executable.c_str())};
    for (const auto& argument : command.arguments) {
      arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    // The child inherits this process's limit: posix_spawn cannot set one.
    const InitialDescriptorLimit limitOfChild;
    const int error = posix_spawn(&child, command.executable.c_str(), &actions_, &attributes_,
                                  arguments.data(), environ);
    return {error, boost::system::system_category()};
  }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
  short flags_ = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
};

/// Sets SIGCHLD to its default if this program was started with SIGCHLD ignored. Otherwise
/// the system would not keep the exit statuses of children.
void keepExitStatuses() {
  struct sigaction current {};
  if (sigaction(SIGCHLD, nullptr, &current) == 0 && current.sa_handler == SIG_IGN) {
    std::signal(SIGCHLD, SIG_DFL);
  }
}

boost::system::result<int> waitFor(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) {
      return lastSystemError();
    }
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// Waits for `child` on another thread, so that it leaves no zombie; on this thread if
/// none can be created.
void waitInBackground(pid_t child) {
  try {
    std::thread([child] { static_cast<void>(waitFor(child)); }).detach();
  } catch (const std::system_error&) {
    static_cast<void>(waitFor(child));
  }
}

}  // namespace

error_code startDetached(const Command& command) {
  SpawnSetup setup;
  setup.useNewSession();
  pid_t child = 0;
  const auto error = setup.spawn(command, child);
  if (!error) {
    waitInBackground(child);
  }
  return error;
}

boost::system::result<int> runSilently(const Command& command, std::chrono::milliseconds limit) {
  keepExitStatuses();
  SpawnSetup setup;
  setup.discardOutput();
  pid_t child = 0;
  if (const auto error = setup.spawn(command, child)) {
    return error;
  }
  if (!endsWithin(child, limit)) {
    kill(child, SIGKILL);
    waitInBackground(child);
    return make_error_code(boost::system::errc::timed_out);
  }
  return waitFor(child);
}

}  // namespace quillmark
