// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// Reports clicks of the left button or a finger: every press inside that is
/// released inside, no matter how long it is held or how far it moves, also in a
/// view that scrolls. Of Qt's own types, TapHandler drops presses that are held
/// or that move, and MouseArea drops the second of two quick taps. UI thread only.
class ClickArea : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit ClickArea(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace quillmark
