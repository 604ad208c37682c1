// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Sets up the first window before it is shown. UI thread only.
class AppDelegate final {
 public:
  /// Makes the application's first window non-opaque (its surface gets an alpha channel)
  /// and gives it a light background. Later windows keep Qt's defaults. Does nothing if
  /// there is no window.
  void applicationDidFinishLaunching() const;
};

}  // namespace quillmark
