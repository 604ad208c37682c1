// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/SettingsState.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>

#include "agentctl/AgentProcess.h"
#include "agentctl/ConfigFile.h"
#include "agentctl/ConfigReadBack.h"

namespace quillmark {
namespace {

// The time the agent gets to start or stop before the probe.
constexpr int probeAfterStartMs = 2000;
constexpr int probeAfterStopMs = 1000;

}  // namespace

QString SettingsState::defaultServerUrl() {
  return QStringLiteral("https://console.quillmark.example");
}

QString SettingsState::selectedFileLine() const {
  return QStringLiteral("Selected: ") + QFileInfo(configPath_).fileName();
}

QString SettingsState::keyHelp() const {
  return QStringLiteral("Get your API key from: ") + serverUrl_ + QStringLiteral("/agent/start");
}

QString SettingsState::agentStatusLine() const {
  return isAgentRunning_ ? QStringLiteral("Agent is running")
                         : QStringLiteral("Agent is not running");
}

void SettingsState::setApiKeyInput(const QString& key) {
  if (key != apiKeyInput_) {
    apiKeyInput_ = key;
    Q_EMIT apiKeyInputChanged();
  }
}

void SettingsState::setServerUrl(const QString& url) {
  if (url != serverUrl_) {
    serverUrl_ = url;
    Q_EMIT serverUrlChanged();
  }
}

void SettingsState::refresh() {
  checkAgentStatus();
  loadCurrentConfig();
}

void SettingsState::startAgent() {
  if (const auto error = startAgentProcess()) {
    reportError(error);
  }
  checkAgentStatusLater(probeAfterStartMs);
}

void SettingsState::stopAgent() {
  if (const auto error = stopAgentProcess()) {
    reportError(error);
  }
  checkAgentStatusLater(probeAfterStopMs);
}

void SettingsState::checkAgentStatus() {
  boost::system::error_code error;
  const bool isRunning = probeAgentProcess(error);
  if (error) {
    reportError(error);
  }
  if (isRunning != isAgentRunning_) {
    isAgentRunning_ = isRunning;
    Q_EMIT isAgentRunningChanged();
  }
}

void SettingsState::checkAgentStatusLater(int milliseconds) {
  // The probe belongs to the start or stop, so it runs even if the tab is destroyed by then.
  // A precise timer, because a coarse one may fire 5 % early.
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, QCoreApplication::instance(),
                     [state = QPointer<SettingsState>(this)] {
                       if (state) {
                         state->checkAgentStatus();
                         Q_EMIT state->agentProbed();
                       } else {
                         boost::system::error_code ignored;
                         static_cast<void>(probeAgentProcess(ignored));
                       }
                     });
}

void SettingsState::loadCurrentConfig() {
  const auto entries = readCurrentConfig();
  if (entries.apiKey) {
    setApiKeyInput(QString::fromStdString(*entries.apiKey));
  }
  if (entries.serverUrl) {
    setServerUrl(QString::fromStdString(*entries.serverUrl));
  }
}

void SettingsState::saveApiKey() {
  if (const auto error = saveConfig(serverUrl_.toStdString(), apiKeyInput_.toStdString())) {
    reportError(error);
  } else {
    report(QStringLiteral("✅ Config saved! Restart the agent to connect."), true);
  }
}

void SettingsState::openConfigFilePicker() { Q_EMIT pickerRequested(); }

void SettingsState::fileChosen(const QUrl& file) {
  configPath_ = file.toLocalFile();
  Q_EMIT configPathChanged();
  importConfig(configPath_);
}

void SettingsState::importConfig(const QString& path) {
  const auto result = importConfigFile(QFile::encodeName(path).toStdString());
  switch (result.outcome) {
    case ImportResult::Outcome::imported:
      report(QStringLiteral(
                 "✅ Config imported successfully! Close and reopen the agent to apply changes."),
             true);
      break;
    case ImportResult::Outcome::missingAgentSection:
      report(QStringLiteral("❌ Invalid config: missing [agent] section"), false);
      break;
    case ImportResult::Outcome::failed:
      reportError(result.error);
      break;
  }
}

void SettingsState::report(const QString& message, bool isSuccess) {
  statusMessage_ = message;
  showSuccess_ = isSuccess;
  Q_EMIT statusMessageChanged();
}

void SettingsState::reportError(const boost::system::error_code& error) {
  report(QStringLiteral("❌ Error: ") + QString::fromStdString(error.message()), false);
}

}  // namespace quillmark
