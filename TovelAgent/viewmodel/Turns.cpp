// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/Turns.h"

#include <chrono>
#include <utility>

#include <QTimer>

namespace quillmark {
namespace {

using namespace std::chrono_literals;

/// Qt needs up to 13 ms to open the fonts of a script for each size of text, and as long to
/// break a word of 16,000 letters into lines.
constexpr std::size_t atOnce = 2;
/// Long enough for a frame and for input.
constexpr auto pause = 30ms;

}  // namespace

Turns& Turns::ofProcess() {
  static Turns turns;
  return turns;
}

bool Turns::take() {
  if (taken_ == atOnce) {
    waits_ = true;
    return false;
  }
  if (taken_ == 0) {
    // The pause follows what the turns take; else it may be over before the window goes on.
    QTimer::singleShot(0, this, [this] { QTimer::singleShot(pause, this, &Turns::begin); });
  }
  ++taken_;
  return true;
}

void Turns::begin() {
  taken_ = 0;
  if (std::exchange(waits_, false)) {
    Q_EMIT eased();
  }
}

}  // namespace quillmark
