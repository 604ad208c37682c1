// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Acts only once, when launching has finished; the toolkit's defaults apply to
/// everything after that. UI thread only.
class AppDelegate final {
 public:
  /// Gives the application's first window its light, non-opaque background. The
  /// window must not have been shown yet. Does nothing if there is no window.
  void applicationDidFinishLaunching() const;
};

}  // namespace quillmark
