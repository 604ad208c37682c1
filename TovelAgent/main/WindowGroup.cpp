// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/WindowGroup.h"

#include <utility>

#include <QQuickWindow>
#include <QtDebug>

#include "main/Renderer.h"

namespace quillmark {

WindowGroup::WindowGroup(QQmlEngine& engine)
    : component_(&engine, QStringLiteral("qrc:/qt/qml/Quillmark/Main/MainWindow.qml")) {}

WindowGroup::~WindowGroup() {
  for (auto* const window : std::as_const(windows_)) {
    window->disconnect(this);
    delete window;
  }
}

void WindowGroup::open() {
  auto* const window = qobject_cast<QQuickWindow*>(component_.create());
  if (window == nullptr) {
    qFatal("The main window cannot be built: %s", qUtf8Printable(component_.errorString()));
  }
  windows_.append(window);
  connect(window, &QQuickWindow::sceneGraphError, this, &restartInSoftware);
  // Nothing but closing hides a window.
  connect(window, &QWindow::visibleChanged, this, [this, window](bool visible) {
    if (!visible) {
      windows_.removeOne(window);
      window->deleteLater();
    }
  });
}

void WindowGroup::present() {
  if (windows_.isEmpty()) {
    open();
  }
  auto* const window = windows_.last();
  window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
  // Not show(): that would also undo maximising.
  window->setVisible(true);
  window->raise();
  window->requestActivate();
}

}  // namespace quillmark
