// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ComputerName.h"

#include <array>

#include <unistd.h>

namespace quillmark {

std::optional<std::string> computerName() {
  // Keep the last byte zero: a name that fills the buffer is not terminated.
  std::array<char, 257> name{};
  if (gethostname(name.data(), name.size() - 1) != 0 || name.front() == '\0') {
    return std::nullopt;
  }
  return name.data();
}

}  // namespace quillmark
