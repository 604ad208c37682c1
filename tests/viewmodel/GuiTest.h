// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QStringList>

namespace quillmark::test {

// For test programs with Qt in them. They link the `main` beside this header,
// which makes a QGuiApplication without a display, but with screens that are named
// after their scales, the first of scale 1; every warning that Qt or QML
// prints fails the running test.

/// While one lives, warnings are kept for the test in place of failing it.
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
