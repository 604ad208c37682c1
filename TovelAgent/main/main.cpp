// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <iostream>

#include <QGuiApplication>

#include "client/TaskExecutor.h"
#include "main/ControlsStyle.h"
#include "main/QuillmarkAgentApp.h"
#include "main/Renderer.h"
#include "main/SessionBus.h"
#include "main/SingleInstance.h"
#include "platform/CommandLine.h"
#include "platform/OperatingSystem.h"
#include "platform/ProcessLimits.h"
#include "platform/StandardStreams.h"

namespace {

// The panel; the agent is a separate program, tovel-agent.
constexpr auto programName = "quillmark-agent";
constexpr auto quitFlag = "quit";

quillmark::CommandLineRules commandLineRules() {
  return {.program = programName,
          .version = QUILLMARK_VERSION,
          .help =
              "Usage: quillmark-agent [OPTION]\n"
              "\n"
              "Opens the control panel of the Quillmark agent, or brings the open one forward.\n"
              "\n"
              "      --quit      end the panel that is open\n"
              "  -h, --help      print this and end\n"
              "  -V, --version   print the version and end\n",
          .flags = {quitFlag},
          // The option that a session manager adds when it restarts the panel.
          .valueOptions = {"session"}};
}

/// Returns the exit code: 1 when no panel answers.
int quitOpenPanel(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  if (quillmark::SingleInstance::quitRunning()) {
    return 0;
  }
  std::cerr << programName << ": no panel answers\n";
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  quillmark::openClosedStandardStreams();
  quillmark::disableCoreDumps();
  quillmark::failWritesBeyondFileSizeLimit();
  quillmark::raiseDescriptorLimit();
  // Before Qt is set up: `--help` and `--quit` need no display and should be fast.
  const auto commandLine = quillmark::readCommandLine(argc, argv, commandLineRules());
  if (commandLine.exitCode) {
    return *commandLine.exitCode;
  }
  quillmark::avoidSilentSessionBus();
  if (commandLine.has(quitFlag)) {
    return quitOpenPanel(argc, argv);
  }

  quillmark::returnLargeBlocksOnFree();
  quillmark::setControlsStyle();
  quillmark::chooseRenderer();
  const QGuiApplication application(argc, argv);
  QCoreApplication::setApplicationName(QString::fromLatin1(programName));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMARK_VERSION));

  const quillmark::TaskExecutor executor;
  quillmark::QuillmarkAgentApp panel;
  return panel.run();
}
