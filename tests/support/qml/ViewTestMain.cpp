// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

#include "client/TaskExecutor.h"
#include "main/ViewEngine.h"

namespace quillmark::test {

/// Prepares each engine for the panel's views, and counts QML's warnings: a test
/// function fails on those during it, but not on those between functions.
class Setup final : public QObject {
  Q_OBJECT

 public:
  [[nodiscard]] int warnings() const { return warnings_; }

 public Q_SLOTS:
  void qmlEngineAvailable(QQmlEngine* engine) {
    prepareForViews(*engine);
    connect(engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError>& errors) {
      warnings_ += static_cast<int>(errors.size());
    });
  }

 private:
  int warnings_ = 0;
};

}  // namespace quillmark::test

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const quillmark::TaskExecutor executor;
  quillmark::test::Setup setup;
  const int failures = quick_test_main_with_setup(argc, argv, "qml", nullptr, &setup);
  if (setup.warnings() > 0) {
    std::fprintf(stderr, "QML gave %d warnings, see above\n", setup.warnings());
  }
  return failures + setup.warnings();
}

#include "ViewTestMain.moc"
