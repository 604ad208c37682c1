// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Scroller.h"

namespace quillmark {

/// Scrolls a ListView and moves its reading position: the current row, which has the
/// keyboard focus when the list has it, so that a screen reader reads it. Arrows move it
/// by a row, Page Up and Page Down by a page, Home and End to the ends; a click moves it
/// to a row. It is not a selection. Polls and scrolling by pointer leave it where it is.
///
/// A row is an item with the property `label`, its text. UI thread only.
// Qualified, because qmllint finds the base class only under this name.
class ListScroller : public quillmark::Scroller {
  Q_OBJECT
  QML_ELEMENT

 public:
  using Scroller::Scroller;

  /// Moves the reading position to the row at `y`, in coordinates of the list, without scrolling.
  /// False if there is no row.
  Q_INVOKABLE bool moveToRowAt(qreal y);

  /// Puts the current row's text on the clipboard.
  Q_INVOKABLE void copy();

  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  /// The user has moved the reading position, or tried to.
  void moved(bool byPointer);
  void copied();
  /// The Menu key or Shift+F10 was pressed.
  void menuRequested();

 protected:
  void followFocus() override;
  [[nodiscard]] bool handleKey(int key) override;
  void moveByLine(int direction) override;
  void moveByPage(int direction) override;
  void moveToEnd(int direction) override;

 private:
  [[nodiscard]] int currentIndex() const;
  [[nodiscard]] int lastIndex() const;
  [[nodiscard]] QQuickItem* row(int index) const;
  [[nodiscard]] QRectF placeOf(int index) const;
  [[nodiscard]] bool isHigherThanView(int index) const;
  [[nodiscard]] int rowAt(qreal y) const;
  [[nodiscard]] int firstInView() const;
  void moveTo(int index);
};

}  // namespace quillmark
