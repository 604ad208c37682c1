// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlComponent>

class QQmlEngine;
class QQuickWindow;

namespace quillmark {

/// The panel's window, which is destroyed when it is closed and may be created again.
/// Each one has a content view and view model of its own. UI thread only.
class PanelWindow final : public QObject {
  Q_OBJECT

 public:
  explicit PanelWindow(QQmlEngine& engine);
  ~PanelWindow() override;

  /// Creates the window, hidden; none may exist before. Its content is laid out when it
  /// is presented. Ends the program if the window cannot be built.
  void open();

  /// Brings the window forward; creates it first if there is none.
  void present();

 private:
  /// Lays out the content, if this has not been done yet.
  void layOut();

  QQmlComponent component_;
  QQuickWindow* window_ = nullptr;  ///< null while the window is closed
  bool isLaidOut_ = true;
};

}  // namespace quillmark
