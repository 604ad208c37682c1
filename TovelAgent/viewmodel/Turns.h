// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

#include <QObject>

namespace quillmark {

/// Shows what takes the window long to show for the first time, such as a long text, in
/// turns: two such things now, the next two after a pause for a frame and for input. UI
/// thread only.
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
  void begin();

  std::size_t taken_ = 0;
  bool waits_ = false;
};

}  // namespace quillmark
