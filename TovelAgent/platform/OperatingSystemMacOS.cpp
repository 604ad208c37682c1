// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <filesystem>

#include <mach-o/dyld.h>
#include <unistd.h>

#include "platform/OperatingSystem.h"

namespace quillmark {

std::string programPath() {
  std::string path(PATH_MAX, '\0');
  auto size = static_cast<std::uint32_t>(path.size());
  if (_NSGetExecutablePath(path.data(), &size) != 0) {
    return {};
  }
  std::error_code unknown;
  return std::filesystem::canonical(path.c_str(), unknown).string();
}

bool exchangeFiles(const char* one, const char* other) {
  if (renamex_np(one, other, RENAME_SWAP) == 0) {
    return true;
  }
  if (errno == ENOTSUP) {
    errno = EINVAL;
  }
  return false;
}

void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions, short& flags) {
  flags = static_cast<short>(flags | POSIX_SPAWN_CLOEXEC_DEFAULT);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addinherit_np(&actions, stream);
  }
}

void returnLargeBlocks() {
  // The system's allocator does.
}

}  // namespace quillmark
