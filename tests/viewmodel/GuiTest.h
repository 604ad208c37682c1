// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QStringList>

namespace quillmark::test {

// For test programs that use Qt. They link the `main` of GuiTestMain.cpp, which creates
// a QGuiApplication without a display. Its screens are named after their scales; the
// first one has scale 1. Every warning of Qt or QML fails the running test.

/// While one exists, warnings are kept for the test and do not fail it.
class KeptWarnings final {
 public:
  KeptWarnings();
  ~KeptWarnings();
  KeptWarnings(const KeptWarnings&) = delete;
  KeptWarnings& operator=(const KeptWarnings&) = delete;

  [[nodiscard]] const QStringList& texts() const { return texts_; }

  void keep(const QString& text) { texts_.append(text); }

 private:
  QStringList texts_;
};

/// Runs the event loop until `condition` holds. False if it never does.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);

}  // namespace quillmark::test
