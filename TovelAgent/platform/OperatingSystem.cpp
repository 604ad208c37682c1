// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <malloc.h>
#include <unistd.h>

#include "platform/OperatingSystem.h"

namespace quillmark {

std::string programPath() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).string();
}

void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions) {
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

void returnLargeBlocks() {
#ifdef __GLIBC__
  // By default, after one large block is freed, later blocks up to its size are not
  // returned to the system.
  constexpr int smallest = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, smallest);
#endif
}

}  // namespace quillmark
