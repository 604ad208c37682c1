// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QWidget window;
  auto* const grid = new QGridLayout(&window);
  for (int index = 0; index < 24; ++index) {
    grid->addWidget(new QLabel(QStringLiteral("Text number %1").arg(index)), index / 4, index % 4);
  }
  window.resize(1000, 700);
  window.show();
  return QApplication::exec();
}
