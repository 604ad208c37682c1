// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <thread>

#include "support/Patience.h"

namespace quillmark::test {

/// Checks `condition` until it holds; false after `patience()`.
template <class Condition>
[[nodiscard]] bool waitUntil(Condition condition) {
  const auto end = std::chrono::steady_clock::now() + patience();
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

}  // namespace quillmark::test
