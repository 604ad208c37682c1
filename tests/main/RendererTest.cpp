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

/// The output of quillmark_renderer_program with this environment.
std::string outputWith(const std::map<std::string, std::string>& variables,
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

TEST(Renderer, IsChosenIfTheEnvironmentSetsNone) { EXPECT_EQ(outputWith({}), "chosen,"); }

TEST(Renderer, IsWhatTheEnvironmentSets) {
  EXPECT_EQ(outputWith({{rhiBackend, "opengl"}}), "left to Qt,");
  EXPECT_EQ(outputWith({{quickBackend, "rhi"}}), "left to Qt,rhi");
  EXPECT_EQ(outputWith({{quickBackend, "software"}}), "left to Qt,software");
}

// The global environment of these tests chooses it before their first window.
TEST(Renderer, IsChosenAsSoftware) {
  EXPECT_EQ(QQuickWindow::sceneGraphBackend().toStdString(), "software");
}

TEST(Renderer, RestartsInSoftwareWithTheSameArguments) {
  EXPECT_EQ(
      outputWith({{rhiBackend, "opengl"}},
                 {QStringLiteral("restart"), QStringLiteral("two words"), QStringLiteral("größe")}),
      "left to Qt,software,restart,two words,größe");
}

}  // namespace
}  // namespace quillmark::test
