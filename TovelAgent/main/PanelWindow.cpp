// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/PanelWindow.h"

#include <utility>

#include <QQmlEngine>
#include <QQuickWindow>
#include <QtDebug>

#include "main/Renderer.h"

namespace quillmark {
namespace {

/// Destroys `window` in the event loop, because Qt may still be closing it. Leaks Qt's own
/// file dialog, a child of it: destroying that crashes Qt 6.4 while assistive technology is
/// connected. The dialog is closed and takes a few hundred kilobytes.
void destroyLater(QQuickWindow* window) {
  const auto children = window->children();
  for (auto* const child : children) {
    if (child->inherits("QQuickPopup")) {
      child->setParent(nullptr);
    }
  }
  window->deleteLater();
}

}  // namespace

PanelWindow::PanelWindow(QQmlEngine& engine)
    : component_(&engine, QStringLiteral("qrc:/qt/qml/Quillmark/Main/MainWindow.qml")) {}

PanelWindow::~PanelWindow() {
  // Qt warns if a component is destroyed between beginCreate() and completeCreate().
  completeCreation();
  if (window_ != nullptr) {
    window_->disconnect(this);
    delete window_;
  }
}

void PanelWindow::open() {
  window_ = qobject_cast<QQuickWindow*>(component_.beginCreate(component_.engine()->rootContext()));
  if (window_ == nullptr) {
    qFatal("The main window cannot be built: %s", qUtf8Printable(component_.errorString()));
  }
  isCreating_ = true;
  // Not in QML, whose engine would first have to load all of Qt's enumerations.
  window_->setFlags(Qt::Window | Qt::FramelessWindowHint);
  // Qt's X11 platform reads the window's role from here; other platforms have none.
  window_->setProperty("_q_xcb_wm_window_role", window_->objectName());
  connect(window_, &QQuickWindow::sceneGraphError, this, &restartInSoftware);
  // The window is hidden only when it is closed.
  connect(window_, &QWindow::visibleChanged, this, [this](bool visible) {
    if (!visible) {
      destroyLater(std::exchange(window_, nullptr));
    }
  });
}

void PanelWindow::present() {
  if (window_ == nullptr) {
    open();
  }
  window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
  // Not show(): that would also undo maximising.
  window_->setVisible(true);
  window_->raise();
  window_->requestActivate();
  // Last, so that the layout runs while the desktop maps the window.
  completeCreation();
}

void PanelWindow::completeCreation() {
  if (std::exchange(isCreating_, false)) {
    // completeCreate() applies the last value that was written to the property `visible`.
    // setVisible() writes none, so without this line the window would be hidden again.
    window_->setProperty("visible", window_->isVisible());
    component_.completeCreate();
  }
}

}  // namespace quillmark
