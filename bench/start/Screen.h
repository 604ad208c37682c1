// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <memory>

#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace quillmark::bench {

/// What a display shows, observed from outside its programs.
class Screen final {
 public:
  /// Connects to the display that the environment names; ends this process without one.
  Screen();

  /// Waits until something is drawn anywhere, at most for `patience`. Returns
  /// whether it was.
  [[nodiscard]] bool waitForDrawing(std::chrono::milliseconds patience);

  /// Whether a window as large as a program's shows more than an empty background:
  /// several colours, as any text has.
  [[nodiscard]] bool showsAWindow() const;

 private:
  [[nodiscard]] bool isPainted(xcb_window_t window) const;

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
  xcb_window_t root_;
  xcb_damage_damage_t damage_;
};

}  // namespace quillmark::bench
