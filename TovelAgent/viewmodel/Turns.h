// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace quillmark {

/// Shows what takes the window long to show for the first time, such as a long text, in
/// turns: one such thing now, the next after a pause for a frame and for input. Qt needs up
/// to 13 ms to open the fonts of a script for each size of text, and as long to break a word
/// of 16,000 letters into lines. UI thread only.
class Turns : public QObject {
  Q_OBJECT

 public:
  /// Those of all texts, because they all block the same thread.
  [[nodiscard]] static Turns& ofProcess();

  /// Whether something may be shown for the first time now. If not, `eased` will come.
  [[nodiscard]] bool take();

  /// Whether something may be shown only after the next `eased`.
  [[nodiscard]] bool waits() const { return waits_; }

 Q_SIGNALS:
  /// What waited should be shown now.
  void eased();

 private:
  void end();

  bool taken_ = false;
  bool waits_ = false;
};

}  // namespace quillmark
