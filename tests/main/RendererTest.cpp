// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <map>
#include <string>

#include <QCoreApplication>
#include <QProcess>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

constexpr auto quickBackend = "QT_QUICK_BACKEND";
constexpr auto rhiBackend = "QSG_RHI_BACKEND";

/// What the program beside this one says with this environment.
std::string said(const std::map<std::string, std::string>& variables,
                 const QStringList& arguments = {}) {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QString::fromLatin1(quickBackend));
  environment.remove(QString::fromLatin1(rhiBackend));
  for (const auto& [name, value] : variables) {
    environment.insert(QString::fromStdString(name), QString::fromStdString(value));
  }
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(
      QCoreApplication::applicationDirPath() + QStringLiteral("/quillmark_renderer_program"),
      arguments);
  EXPECT_TRUE(process.waitForFinished());
  EXPECT_EQ(process.exitCode(), 0);
  return process.readAllStandardOutput().toStdString();
}

TEST(Renderer, IsChosenWhereTheEnvironmentSaysNothing) { EXPECT_EQ(said({}), "chosen,"); }

TEST(Renderer, IsWhatTheEnvironmentAsksFor) {
  EXPECT_EQ(said({{rhiBackend, "opengl"}}), "left to Qt,");
  EXPECT_EQ(said({{quickBackend, "rhi"}}), "left to Qt,rhi");
  EXPECT_EQ(said({{quickBackend, "software"}}), "left to Qt,software");
}

// By the environment of these tests, before their first window.
TEST(Renderer, IsChosenAsSoftware) {
  EXPECT_EQ(QQuickWindow::sceneGraphBackend().toStdString(), "software");
}

TEST(Renderer, RestartsInSoftwareWithTheSameArguments) {
  EXPECT_EQ(said({{rhiBackend, "opengl"}},
                 {QStringLiteral("restart"), QStringLiteral("two words"), QStringLiteral("größe")}),
            "left to Qt,software,restart,two words,größe");
}

}  // namespace
}  // namespace quillmark::test
