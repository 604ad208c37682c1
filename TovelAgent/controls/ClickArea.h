// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// Takes clicks by the left button or a finger: each press inside that is let go
/// inside, however long it is held and however far it drifts meanwhile, also in
/// a view that scrolls. Of Qt's own, TapHandler drops presses that are held or
/// drift, MouseArea the second of two quick taps. UI thread only.
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
