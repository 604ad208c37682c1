// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// What happens once, when launching has finished, and nothing else: the
/// toolkit's defaults hold for everything after. UI thread only.
class AppDelegate final {
 public:
  /// Gives the first of the application's windows, which must not have been
  /// shown yet, its light, non-opaque background. Without a window, nothing.
  void applicationDidFinishLaunching() const;
};

}  // namespace quillmark
