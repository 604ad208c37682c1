// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/SettingsState.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "agentctl/WithHome.h"
#include "platform/Files.h"
#include "support/TokenFiles.h"
#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

constexpr auto savedMessage = "✅ Config saved! Restart the agent to connect.";
constexpr auto importedMessage =
    "✅ Config imported successfully! Close and reopen the agent to apply changes.";
constexpr auto noSectionMessage = "❌ Invalid config: missing [agent] section";

class SettingsStateTest : public WithHome {
 protected:
  /// Writes a file; returns its URL, as the picker does.
  [[nodiscard]] QUrl chosen(const std::string& text) const {
    writeFile(home() + "/a folder/my config.toml", text);
    return QUrl::fromLocalFile(QString::fromStdString(home() + "/a folder/my config.toml"));
  }

  void expectSuccess(const QString& message) const {
    EXPECT_EQ(state.statusMessage(), message);
    EXPECT_TRUE(state.showSuccess());
    EXPECT_FALSE(state.showError());
  }

  void expectFailure(const QString& message) const {
    EXPECT_EQ(state.statusMessage(), message);
    EXPECT_FALSE(state.showSuccess());
    EXPECT_TRUE(state.showError());
  }

  /// Makes every write of a configuration fail.
  void putAFileInPlaceOfTheFolder() const { writeFile(home() + "/.config", ""); }

  SettingsState state;
  const QSignalSpy statusChanges{&state, &SettingsState::statusMessageChanged};
};

TEST_F(SettingsStateTest, HasDefaultsAtFirst) {
  EXPECT_EQ(state.configPath(), "");
  EXPECT_EQ(state.statusMessage(), "");
  EXPECT_FALSE(state.isImporting());
  EXPECT_FALSE(state.showSuccess());
  EXPECT_FALSE(state.showError());
  EXPECT_EQ(state.apiKeyInput(), "");
  EXPECT_FALSE(state.canSave());
  EXPECT_EQ(state.serverUrl(), SettingsState::defaultServerUrl());
  EXPECT_EQ(state.agentStatusText(), "Checking...");
  EXPECT_FALSE(state.isAgentRunning());
  EXPECT_EQ(state.agentStatusLine(), "Agent is not running");
}

TEST_F(SettingsStateTest, ReadsTheConfigurationBackWhenTheTabAppears) {
  writeFile(configFile(), "api_key = 'k'\nserver_url = 'https://s.example'\n");
  state.refresh();
  EXPECT_EQ(state.apiKeyInput(), "k");
  EXPECT_EQ(state.serverUrl(), "https://s.example");
  EXPECT_EQ(state.configPath(), "");
  EXPECT_EQ(statusChanges.count(), 0) << "without a message";
}

TEST_F(SettingsStateTest, KeepsItsFieldsWithoutAConfiguration) {
  state.setApiKeyInput(QStringLiteral("typed"));
  state.refresh();
  EXPECT_EQ(state.apiKeyInput(), "typed");
  EXPECT_EQ(state.serverUrl(), SettingsState::defaultServerUrl());
}

TEST_F(SettingsStateTest, CanSaveWithAKeyOnly) {
  const QSignalSpy changed(&state, &SettingsState::apiKeyInputChanged);
  state.setApiKeyInput(QStringLiteral(" "));
  EXPECT_TRUE(state.canSave());
  state.setApiKeyInput(QStringLiteral(" "));
  EXPECT_EQ(changed.count(), 1) << "the same key is no change";
  state.setApiKeyInput(QString());
  EXPECT_FALSE(state.canSave());
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(SettingsStateTest, ShowsWhereToGetAKeyWhileTheServerIsTyped) {
  EXPECT_EQ(state.keyHelp(),
            "Get your API key from: https://console.quillmark.example/agent/start");
  const QSignalSpy changed(&state, &SettingsState::serverUrlChanged);
  state.setServerUrl(QStringLiteral("x"));
  EXPECT_EQ(state.keyHelp(), "Get your API key from: x/agent/start");
  state.setServerUrl(QStringLiteral("x"));
  EXPECT_EQ(changed.count(), 1);
  state.setServerUrl(QString());
  EXPECT_EQ(state.keyHelp(), "Get your API key from: /agent/start");
}

TEST_F(SettingsStateTest, SavesBothFieldsUnchanged) {
  state.setServerUrl(QStringLiteral(" https://caf\u00E9.example "));
  state.setApiKeyInput(QStringLiteral("a=\"b\""));
  state.saveApiKey();
  expectSuccess(QString::fromUtf8(savedMessage));
  EXPECT_EQ(statusChanges.count(), 1);
  const auto text = contentOf(configFile());
  EXPECT_NE(text.find("server_url = \" https://caf\u00E9.example \"\n"), std::string::npos) << text;
  EXPECT_NE(text.find("api_key = \"a=\"b\"\"\n"), std::string::npos) << text;
  EXPECT_EQ(state.apiKeyInput(), "a=\"b\"") << "what was written is not read back";
}

TEST_F(SettingsStateTest, ShowsWhyASaveFailed) {
  putAFileInPlaceOfTheFolder();
  state.setApiKeyInput(QStringLiteral("k"));
  state.saveApiKey();
  expectFailure(QStringLiteral("❌ Error: Not a directory"));
}

TEST_F(SettingsStateTest, RequestsThePicker) {
  const QSignalSpy asked(&state, &SettingsState::pickerRequested);
  state.openConfigFilePicker();
  EXPECT_EQ(asked.count(), 1);
  EXPECT_EQ(state.configPath(), "");
}

TEST_F(SettingsStateTest, ImportsTheChosenFile) {
  const QSignalSpy moved(&state, &SettingsState::configPathChanged);
  state.fileChosen(chosen("[agent]\napi_key = 'k'"));
  expectSuccess(QString::fromUtf8(importedMessage));
  EXPECT_EQ(contentOf(configFile()), "[agent]\napi_key = 'k'");
  EXPECT_EQ(state.configPath().toStdString(), home() + "/a folder/my config.toml");
  EXPECT_EQ(state.selectedFileLine(), "Selected: my config.toml");
  EXPECT_EQ(moved.count(), 1);
  EXPECT_EQ(state.apiKeyInput(), "") << "the fields are not read again";
}

TEST_F(SettingsStateTest, ShowsThatTheChosenFileHasNoAgentSection) {
  state.fileChosen(chosen("[other]"));
  expectFailure(QString::fromUtf8(noSectionMessage));
  EXPECT_EQ(state.selectedFileLine(), "Selected: my config.toml");
  EXPECT_FALSE(std::filesystem::exists(configFile()));
}

TEST_F(SettingsStateTest, ShowsWhyAnImportFailed) {
  state.fileChosen(chosen("[agent]\xFF"));
  expectFailure(QStringLiteral("❌ Error: The file is not UTF-8 text"));
  state.fileChosen(QUrl::fromLocalFile(QStringLiteral("/nowhere/config.toml")));
  expectFailure(QStringLiteral("❌ Error: No such file or directory"));
  EXPECT_EQ(statusChanges.count(), 2);
}

TEST_F(SettingsStateTest, ShowsTheLatestOutcomeOnly) {
  state.fileChosen(chosen("[other]"));
  state.setApiKeyInput(QStringLiteral("k"));
  state.saveApiKey();
  expectSuccess(QString::fromUtf8(savedMessage));
  state.fileChosen(chosen("[other]"));
  expectFailure(QString::fromUtf8(noSectionMessage));
}

}  // namespace
}  // namespace quillmark::test
