// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Sets up the first window before it is shown. UI thread only.
class AppDelegate final {
 public:
  /// Call before the first window is shown. Gives it an alpha channel and a light
  /// background. On purpose only this window: later ones keep Qt's defaults. Does nothing
  /// if there is no window.
  void applicationDidFinishLaunching() const;
};

}  // namespace quillmark
