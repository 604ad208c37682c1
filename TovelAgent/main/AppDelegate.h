// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Sets up the first window before it is shown. UI thread only.
class AppDelegate final {
 public:
  /// Gives the application's first window a light background and a surface with an
  /// alpha channel. Does nothing if there is no window.
  void applicationDidFinishLaunching() const;
};

}  // namespace quillmark
