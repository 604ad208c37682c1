// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decode/PeakMemory.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmark::bench {
namespace {

double statusBytes(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (double kibibytes = 0; word == key && status >> kibibytes) {
      return kibibytes * 1024;
    }
  }
  std::abort();
}

}  // namespace

double peakExtraBytes(const std::function<void()>& smallAction,
                      const std::function<void()>& action) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) {
    std::abort();
  }
  const pid_t child = fork();
  if (child == 0) {
    smallAction();
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5\n";  // reset the peak, VmHWM
    const double before = statusBytes("VmRSS:");
    action();
    const double extra = statusBytes("VmHWM:") - before;
    _exit(write(ends[1], &extra, sizeof extra) == sizeof extra ? 0 : 1);
  }
  double extra = 0;
  int status = 0;
  const bool isReceived = read(ends[0], &extra, sizeof extra) == sizeof extra;
  if (!isReceived || waitpid(child, &status, 0) != child || status != 0) {
    std::abort();
  }
  close(ends[0]);
  close(ends[1]);
  return extra;
}

}  // namespace quillmark::bench
