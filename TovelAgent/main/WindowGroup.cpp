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

/// Qt's own file dialog is a child of the window, not of the view that opened
/// it. Destroying one crashes Qt 6.4 while assistive technology is connected, so
/// it is leaked: it is closed and takes at most a few hundred kilobytes.
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
  finish();
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
  finish();
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
  finish();
}

/// Lays out the latest window's content, if this has not been done yet.
void WindowGroup::finish() {
  if (std::exchange(isUnfinished_, false)) {
    // QML's own `visible` does not follow ours, and would hide the window otherwise.
    auto* const window = windows_.last();
    window->setProperty("visible", window->isVisible());
    component_.completeCreate();
  }
}

}  // namespace quillmark
