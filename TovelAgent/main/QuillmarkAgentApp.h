// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "main/AppDelegate.h"

namespace quillmark {

/// The panel as an application: one window at a time, and a delegate that sets up the
/// first one. UI thread only.
class QuillmarkAgentApp final {
 public:
  /// Opens the first window and runs the event loop; returns its exit code. If a panel
  /// of the session answers, brings that one forward and returns 0.
  [[nodiscard]] int run();

 private:
  AppDelegate appDelegate;
};

}  // namespace quillmark
