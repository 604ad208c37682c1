// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <memory>

#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace quillmark::bench {

/// What a display shows, seen from outside of every program on it.
class Screen final {
 public:
  /// Connects to the display that the environment names; exits without one.
  Screen();

  /// Waits until something is drawn anywhere, at most for `patience`. Returns
  /// whether it was.
  [[nodiscard]] bool waitForDrawing(std::chrono::milliseconds patience);

  /// Whether a window of a program's size shows more than an empty ground:
  /// several colours, as any text brings with it.
  [[nodiscard]] bool showsAWindow() const;

 private:
  [[nodiscard]] bool isPainted(xcb_window_t window) const;

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
  xcb_window_t root_;
  xcb_damage_damage_t damage_;
};

}  // namespace quillmark::bench
