// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlComponent>

class QQmlEngine;
class QQuickWindow;

namespace quillmark {

/// The panel's windows, each with a content view and view model of its own.
/// A window that is closed is gone. UI thread only.
class WindowGroup final : public QObject {
  Q_OBJECT

 public:
  explicit WindowGroup(QQmlEngine& engine);
  ~WindowGroup() override;

  /// Makes a window, not yet shown. Its content is laid out when it is presented.
  void open();

  /// Brings the latest window forward; makes one first if none is there.
  void present();

 private:
  void destroyClosed();
  void finish();

  QQmlComponent component_;
  QList<QQuickWindow*> windows_;
  bool isUnfinished_ = false;    ///< the latest window's content is made, but not laid out
  QList<QQuickWindow*> closed_;  ///< hidden and about to go
};

}  // namespace quillmark
