// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlComponent>

class QQmlEngine;
class QQuickWindow;

namespace quillmark {

/// The panel's windows, each with a content view and view model of its own.
/// A closed window is destroyed. UI thread only.
class WindowGroup final : public QObject {
  Q_OBJECT

 public:
  explicit WindowGroup(QQmlEngine& engine);
  ~WindowGroup() override;

  /// Creates a window, not yet shown. Its content is laid out when it is presented.
  /// Ends the program if the window cannot be built.
  void open();

  /// Brings the latest window forward; creates one first if there is none.
  void present();

 private:
  void destroyClosed();
  /// Lays out the latest window's content, if this has not been done yet.
  void layOutLatest();

  QQmlComponent component_;
  QList<QQuickWindow*> windows_;
  bool isUnfinished_ = false;    ///< the latest window's content is created, but not laid out
  QList<QQuickWindow*> closed_;  ///< hidden, to be destroyed
};

}  // namespace quillmark
