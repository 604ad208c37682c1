// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include "platform/OperatingSystem.h"

namespace quillmark {

std::string programPath() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).string();
}

bool exchangeFiles(const char* one, const char* other) {
  return renameat2(AT_FDCWD, one, AT_FDCWD, other, RENAME_EXCHANGE) == 0;
}

void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions, short& /*flags*/) {
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

void returnLargeBlocks() {
#ifdef __GLIBC__
  // Otherwise freeing one block makes all of up to its size stay.
  constexpr int smallest = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, smallest);
#endif
}

}  // namespace quillmark
