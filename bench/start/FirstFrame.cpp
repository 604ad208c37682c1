// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// first_frame PROGRAM [ARGUMENT...]
//
// Starts a program on the display and leaves it running. Prints its process id,
// the milliseconds from then to its first painted window, and those to the last
// change that follows within a second.

#include <chrono>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "Screen.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto patience = 60s;
constexpr auto stillness = 1s;

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
    // Whoever reads what is printed here shall not wait for the program's end.
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execvp(argv[1], argv + 1);
    _exit(127);
  }
  do {
    if (!screen.waitForDrawing(patience)) {
      std::fputs("nothing was drawn\n", stderr);
      return 1;
    }
  } while (!screen.showsAWindow());
  // When it is seen, not when something was drawn: that may have been an empty
  // ground, with the frame following while the look was taken.
  const double first = millisecondsSince(start);

  double last = first;
  while (screen.waitForDrawing(stillness)) {
    last = millisecondsSince(start);
    if (last - first > 10'000) {
      break;  // it is never still
    }
  }
  std::printf("%d %.2f %.2f\n", static_cast<int>(child), first, last);
}
