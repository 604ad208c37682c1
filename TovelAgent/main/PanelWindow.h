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

  /// Creates the window, hidden; call only while there is none. `present` lays out its
  /// content. Ends the program if the window cannot be built.
  void open();

  /// Brings the window forward; creates it first if there is none.
  void present();

 private:
  void completeCreation();

  QQmlComponent component_;
  QQuickWindow* window_ = nullptr;  ///< null while the window is closed
  bool isCreating_ = false;         ///< between beginCreate() and completeCreate()
};

}  // namespace quillmark
