// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OperatingSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include <malloc.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillmark {

std::string programPath() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions) {
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

bool endsWithin(pid_t child, std::chrono::milliseconds limit) {
  // glibc 2.36's <sys/pidfd.h> lacks extern "C", so its `pidfd_open` does not link.
  const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
  if (descriptor < 0) {
    // For example, no descriptor is free. The caller then waits without a limit.
    return true;
  }
  const auto end = std::chrono::steady_clock::now() + limit;
  pollfd ended{descriptor, POLLIN, 0};
  int count = -1;
  do {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    count = poll(&ended, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
  } while (count < 0 && errno == EINTR);
  close(descriptor);
  return count != 0;
}

void makeUndumpable() { prctl(PR_SET_DUMPABLE, 0); }

void returnLargeBlocksOnFree() {
#ifdef __GLIBC__
  // glibc raises this threshold to the size of each larger block that is freed, and
  // does not return later blocks below it to the system. Setting it stops that.
  constexpr int minLargeBlockBytes = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, minLargeBlockBytes);
#endif
}

}  // namespace quillmark
