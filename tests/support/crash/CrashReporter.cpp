// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Preloaded into every program that a test starts. When the program crashes, writes
// the stack of each thread to the folder QUILLMARK_CRASH_FOLDER. Core dumps are no
// alternative: the panel disables them, and their path depends on the machine.

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::array crashSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

/// A text in a fixed buffer: a signal handler must not allocate memory.
class Text final {
 public:
  Text& operator<<(const char* text) {
    const auto count = std::min(std::strlen(text), room() - 1);
    std::memcpy(end_, text, count);
    end_ += count;
    return *this;
  }
  Text& operator<<(long number) {
    const auto [end, error] = std::to_chars(end_, end_ + room() - 1, number);
    end_ = error == std::errc() ? end : end_;
    return *this;
  }
  [[nodiscard]] char* get() { return characters_.data(); }

 private:
  [[nodiscard]] std::size_t room() const {
    return static_cast<std::size_t>(characters_.data() + characters_.size() - end_);
  }

  std::array<char, 4096> characters_{};
  char* end_ = characters_.data();
};

[[noreturn]] void writeStacksOf(pid_t crashed) {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  Text path;
  path << std::getenv("QUILLMARK_CRASH_FOLDER") << "/crash-" << program_invocation_short_name << "-"
       << now.tv_sec << "-" << now.tv_nsec << ".txt";
  const int file = open(path.get(), O_WRONLY | O_CREAT | O_EXCL, 0644);
  dup2(file, STDOUT_FILENO);
  dup2(file, STDERR_FILENO);
  Text id;
  id << long{crashed};
  std::array<char, 16> search{"PATH=/usr/bin"};
  std::array<char*, 2> environment{search.data(), nullptr};
  execle("/usr/bin/gdb", "gdb", "--batch", "--nx", "-p", id.get(), "-ex",
         "thread apply all backtrace", nullptr, environment.data());
  _exit(1);
}

void report(int signal) {
  const pid_t crashed = getpid();
  prctl(PR_SET_DUMPABLE, 1);
  prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
  const pid_t writer = fork();
  if (writer == 0) {
    writeStacksOf(crashed);
  }
  if (writer > 0) {
    while (waitpid(writer, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  // SA_RESETHAND has restored the default action, which ends the program.
  raise(signal);
}

[[gnu::constructor]] void listenForCrashes() {
  if (std::getenv("QUILLMARK_CRASH_FOLDER") == nullptr) {
    return;
  }
  // A separate stack, because the program's own may have overflowed.
  static std::array<char, 64 * 1024> stack;
  const stack_t alternative{stack.data(), 0, stack.size()};
  sigaltstack(&alternative, nullptr);
  struct sigaction action {};
  action.sa_handler = report;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
  for (const int signal : crashSignals) {
    sigaction(signal, &action, nullptr);
  }
}

}  // namespace
