// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// first_frame PROGRAM [ARGUMENT...]
//
// Starts a program on the display and leaves it running. Prints its process id, the
// milliseconds from the start to its first painted window, and those to the last
// change before a second without changes.

#include <chrono>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "Screen.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto drawTimeout = 60s;
constexpr auto settleTime = 1s;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) {
    std::fputs("usage: first_frame PROGRAM [ARGUMENT...]\n", stderr);
    return 2;
  }
  quillmark::bench::Screen screen;
  while (screen.waitForDrawing(100ms)) {
  }

  const auto start = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    // The reader of this program's output must not wait for the child's end.
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execvp(argv[1], argv + 1);
    _exit(127);
  }
  do {
    if (!screen.waitForDrawing(drawTimeout)) {
      std::fputs("nothing was drawn\n", stderr);
      return 1;
    }
  } while (!screen.showsAWindow());
  // Measured after the check, not when something was drawn: that may have been an
  // empty background, with the frame painted during the check.
  const double first = millisecondsSince(start);

  double last = first;
  while (screen.waitForDrawing(settleTime)) {
    last = millisecondsSince(start);
    if (last - first > 10'000) {
      break;  // it never stops drawing
    }
  }
  std::printf("%d %.2f %.2f\n", static_cast<int>(child), first, last);
}
