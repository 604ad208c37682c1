// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>

#include "viewmodel/Turns.h"

namespace quillmark::test {

/// What `convert` returns once nothing waits for its turn.
template <class Convert>
[[nodiscard]] auto settled(const Turns& turns, Convert convert) {
  auto result = convert();
  while (turns.waits()) {
    // The next turn comes by a timer.
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!turns.waits()) {
      result = convert();
    }
  }
  return result;
}

}  // namespace quillmark::test
