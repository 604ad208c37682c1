// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdlib>
#include <string>

namespace quillmark::test {

/// How long a test waits for an expected event. Only ends a test that hangs: it is ten
/// times the slowest wait on an idle machine.
[[nodiscard]] inline std::chrono::seconds patience() {
  const auto* const factor = std::getenv("QUILLMARK_TEST_PATIENCE");
  return std::chrono::seconds(120) * (factor == nullptr ? 1 : std::stoi(factor));
}

}  // namespace quillmark::test
