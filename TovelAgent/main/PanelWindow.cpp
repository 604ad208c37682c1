// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/WindowGroup.h"

#include <utility>

#include <QQmlEngine>
#include <QQuickWindow>
#include <QtDebug>

#include "main/Renderer.h"

namespace quillmark {
namespace {

/// Destroys `window`, but leaks Qt's own file dialog, a child of it: destroying that
/// crashes Qt 6.4 while assistive technology is connected. It is closed and takes at
/// most a few hundred kilobytes.
void destroy(QQuickWindow* window) {
  const auto children = window->children();
  for (auto* const child : children) {
    if (child->inherits("QQuickPopup")) {
      child->setParent(nullptr);
    }
  }
  delete window;
}

}  // namespace

WindowGroup::WindowGroup(QQmlEngine& engine)
    : component_(&engine, QStringLiteral("qrc:/qt/qml/Quillmark/Main/MainWindow.qml")) {}

WindowGroup::~WindowGroup() {
  layOutLatest();
  for (auto* const window : std::as_const(windows_)) {
    window->disconnect(this);
  }
  closed_.append(windows_);
  destroyClosed();
}

void WindowGroup::destroyClosed() {
  for (auto* const window : std::exchange(closed_, {})) {
    destroy(window);
  }
}

void WindowGroup::open() {
  layOutLatest();
  auto* const window =
      qobject_cast<QQuickWindow*>(component_.beginCreate(component_.engine()->rootContext()));
  if (window == nullptr) {
    qFatal("The main window cannot be built: %s", qUtf8Printable(component_.errorString()));
  }
  // Not in QML, whose engine would first have to load all of Qt's enumerations.
  window->setFlags(Qt::Window | Qt::FramelessWindowHint);
  // Qt's X11 platform reads the window's role from here; other platforms have none.
  window->setProperty("_q_xcb_wm_window_role", window->objectName());
  windows_.append(window);
  isUnfinished_ = true;
  connect(window, &QQuickWindow::sceneGraphError, this, &restartInSoftware);
  // A window is hidden only when it is closed.
  connect(window, &QWindow::visibleChanged, this, [this, window](bool visible) {
    if (!visible) {
      windows_.removeOne(window);
      closed_.append(window);
      // Queued, because the window is still being closed.
      QMetaObject::invokeMethod(this, &WindowGroup::destroyClosed, Qt::QueuedConnection);
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
  // Last, so that the layout runs while the desktop maps the window.
  layOutLatest();
}

void WindowGroup::layOutLatest() {
  if (std::exchange(isUnfinished_, false)) {
    // QML's pending value of `visible` is still false and would hide the window.
    auto* const window = windows_.last();
    window->setProperty("visible", window->isVisible());
    component_.completeCreate();
  }
}

}  // namespace quillmark
