// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include "client/TaskExecutor.h"
#include "main/PanelWindow.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {

/// The base of the tests that open the panel's windows; only inside the sandbox, because
/// the windows poll.
class WindowTest : public testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;

  /// The windows that exist, oldest first.
  [[nodiscard]] static QList<QQuickWindow*> windows();

  /// Presents a window, and waits until it is active.
  [[nodiscard]] QQuickWindow* presented();

  /// The item in `window` whose property has this value; null if there is none.
  [[nodiscard]] static QQuickItem* itemWith(const QQuickWindow& window, const char* property,
                                            const QString& value);

  /// Clicks in the middle of `item`.
  static void click(QQuickItem* item);

  QQmlEngine engine_;
  PanelWindow& panel() { return *panel_; }

 private:
  TaskExecutor executor_;
  std::unique_ptr<PanelWindow> panel_;
};

}  // namespace quillmark::test
