// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "main/AppDelegate.h"

namespace quillmark {

/// The panel as an application: one group of windows, and a delegate that is
/// told when launching has finished. UI thread only.
class QuillmarkAgentApp final {
 public:
  /// Opens the first window and runs the event loop; gives its exit code. If
  /// the user's panel runs already, asks that one to come forward and gives 0.
  [[nodiscard]] int run();

 private:
  AppDelegate appDelegate;
};

}  // namespace quillmark
