// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// The Settings tab's state and the actions of its buttons. It exists as long as
/// the tab's view. UI thread only; its file accesses and commands block that thread.
class SettingsState : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString configPath READ configPath NOTIFY configPathChanged)
  Q_PROPERTY(QString selectedFileLine READ selectedFileLine NOTIFY configPathChanged)
  Q_PROPERTY(QString statusMessage READ statusMessage NOTIFY statusMessageChanged)
  Q_PROPERTY(bool isImporting READ isImporting CONSTANT)
  Q_PROPERTY(bool showSuccess READ showSuccess NOTIFY statusMessageChanged)
  Q_PROPERTY(bool showError READ showError NOTIFY statusMessageChanged)
  Q_PROPERTY(QString apiKeyInput READ apiKeyInput WRITE setApiKeyInput NOTIFY apiKeyInputChanged)
  Q_PROPERTY(bool canSave READ canSave NOTIFY apiKeyInputChanged)
  Q_PROPERTY(QString serverUrl READ serverUrl WRITE setServerUrl NOTIFY serverUrlChanged)
  Q_PROPERTY(QString defaultServerUrl READ defaultServerUrl CONSTANT)
  Q_PROPERTY(QString keyHelp READ keyHelp NOTIFY serverUrlChanged)
  Q_PROPERTY(QString agentStatusText READ agentStatusText CONSTANT)
  Q_PROPERTY(bool isAgentRunning READ isAgentRunning NOTIFY isAgentRunningChanged)
  Q_PROPERTY(QString agentStatusLine READ agentStatusLine NOTIFY isAgentRunningChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] QString configPath() const { return configPath_; }
  /// "Selected: " and the name of the chosen file.
  [[nodiscard]] QString selectedFileLine() const;
  [[nodiscard]] QString statusMessage() const { return statusMessage_; }
  /// Always false: an import is over when the call returns. Part of the tab's state, but
  /// no view shows it.
  [[nodiscard]] bool isImporting() const { return isImporting_; }
  [[nodiscard]] bool showSuccess() const { return showSuccess_; }
  /// Part of the tab's state, but no view shows it.
  [[nodiscard]] bool showError() const { return !statusMessage_.isEmpty() && !showSuccess_; }
  [[nodiscard]] QString apiKeyInput() const { return apiKeyInput_; }
  void setApiKeyInput(const QString& key);
  [[nodiscard]] bool canSave() const { return !apiKeyInput_.isEmpty(); }
  [[nodiscard]] QString serverUrl() const { return serverUrl_; }
  void setServerUrl(const QString& url);
  /// The management server for users who do not run their own.
  [[nodiscard]] static QString defaultServerUrl();
  /// Where to get a key; depends on the server field.
  [[nodiscard]] QString keyHelp() const;
  /// Always "Checking...". Part of the tab's state, but no view shows it; a view shows
  /// `agentStatusLine`.
  [[nodiscard]] QString agentStatusText() const { return agentStatusText_; }
  [[nodiscard]] bool isAgentRunning() const { return isAgentRunning_; }
  [[nodiscard]] QString agentStatusLine() const;

  /// Call when the tab becomes visible: probes, then reads the configuration back.
  Q_INVOKABLE void refresh();
  /// Starts the agent, and probes 2 seconds later.
  Q_INVOKABLE void startAgent();
  /// Runs the stop command, and probes 1 second later.
  Q_INVOKABLE void stopAgent();
  /// Writes the configuration from the two fields.
  Q_INVOKABLE void saveApiKey();
  /// Asks the view to show its file picker.
  Q_INVOKABLE void openConfigFilePicker();
  /// Imports the file that the user chose in the picker.
  Q_INVOKABLE void fileChosen(const QUrl& file);

 Q_SIGNALS:
  void configPathChanged();
  void statusMessageChanged();
  void apiKeyInputChanged();
  void serverUrlChanged();
  void isAgentRunningChanged();
  /// The probe after a start or a stop is complete.
  void agentProbed();
  void pickerRequested();

 private:
  void checkAgentStatus();
  void checkAgentStatusLater(int milliseconds);
  void loadCurrentConfig();
  void importConfig(const QString& path);
  void report(const QString& message, bool isSuccess);
  void reportError(const boost::system::error_code& error);

  QString configPath_;
  QString statusMessage_;
  const bool isImporting_ = false;
  bool showSuccess_ = false;
  QString apiKeyInput_;
  QString serverUrl_ = defaultServerUrl();
  const QString agentStatusText_ = QStringLiteral("Checking...");
  bool isAgentRunning_ = false;
};

}  // namespace quillmark
