// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OperatingSystem.h"

#include <filesystem>
#include <system_error>

#include <malloc.h>
#include <unistd.h>

namespace quillmark {

std::string programPath() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions) {
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

void returnLargeBlocksOnFree() {
#ifdef __GLIBC__
  // glibc raises this threshold to the size of each larger block that is freed, and
  // does not return later blocks below it to the system. Setting it stops that.
  constexpr int minLargeBlockBytes = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, minLargeBlockBytes);
#endif
}

}  // namespace quillmark
