// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/Turns.h"

#include <chrono>
#include <utility>

#include <QTimer>

namespace quillmark {
namespace {

using namespace std::chrono_literals;

/// Long enough for a frame and for input.
constexpr auto pause = 30ms;

}  // namespace

Turns& Turns::ofProcess() {
  static Turns turns;
  return turns;
}

bool Turns::take() {
  if (taken_) {
    waits_ = true;
    return false;
  }
  taken_ = true;
  // The pause follows what the turn takes; else it may be over before the window goes on.
  QTimer::singleShot(0, this, [this] { QTimer::singleShot(pause, this, &Turns::end); });
  return true;
}

void Turns::end() {
  taken_ = false;
  if (std::exchange(waits_, false)) {
    Q_EMIT eased();
  }
}

}  // namespace quillmark
