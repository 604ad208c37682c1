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
  // By default, after one large block is freed, later blocks up to its size are not
  // returned to the system.
  constexpr int minLargeBlockBytes = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, minLargeBlockBytes);
#endif
}

}  // namespace quillmark
