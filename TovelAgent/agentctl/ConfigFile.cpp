// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/ConfigFile.h"

#include <string_view>

#include <boost/system/result.hpp>
#include <boost/uuid/entropy_error.hpp>

#include "agentctl/ConfigText.h"
#include "platform/AtomicFile.h"
#include "platform/ComputerName.h"
#include "platform/HomeDirectory.h"
#include "platform/TextFile.h"
#include "platform/Uuid.h"

namespace quillmark {
namespace {

constexpr std::size_t uuidCharactersInAgentId = 8;

std::string configFolder() { return homeDirectory() + "/.config/quillmark"; }

/// The prefix "macos-" is part of the id's format and does not name the system. Returns an
/// error when the system provides no random bytes.
boost::system::result<std::string> newAgentId() {
  try {
    return "macos-" + computerName().value_or("device") + "-" +
           upperCaseText(randomUuid()).substr(0, uuidCharactersInAgentId);
  } catch (const boost::uuids::entropy_error& error) {
    return boost::system::error_code(static_cast<int>(error.errcode()),
                                     boost::system::system_category());
  }
}

boost::system::error_code writeConfig(std::string_view text) {
  if (const auto error = createPrivateFolders(configFolder())) {
    return error;
  }
  return writeFileAtomically(configFilePath(), text);
}

}  // namespace

std::string configFilePath() { return configFolder() + "/config.toml"; }

boost::system::error_code saveConfig(const std::string& serverUrl, const std::string& apiKey) {
  const auto agentId = newAgentId();
  if (!agentId) {
    return agentId.error();
  }
  ConfigValues values;
  values.agentId = *agentId;
  values.machineIdentifier = computerName().value_or("macos-device");
  values.serverUrl = serverUrl;
  values.apiKey = apiKey;
  values.home = homeDirectory();
  return writeConfig(configText(values));
}

ImportResult importConfigFile(const std::string& source) {
  using enum ImportResult::Outcome;
  const auto text = readTextFile(source, maxConfigBytes);
  if (!text) {
    return {failed, text.error()};
  }
  if (text->find("[agent]") == std::string::npos) {
    return {missingAgentSection, {}};
  }
  const auto error = writeConfig(*text);
  return {error ? failed : imported, error};
}

}  // namespace quillmark
