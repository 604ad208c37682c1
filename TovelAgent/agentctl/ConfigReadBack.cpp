// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/ConfigReadBack.h"

#include <utility>

#include "agentctl/ConfigFile.h"
#include "platform/HomeDirectory.h"
#include "platform/TextFile.h"
#include "platform/Utf8.h"

namespace quillmark {
namespace {

/// Servers refuse longer ones, and a field would need seconds to show one of a megabyte.
constexpr std::size_t maxUrlBytes = 8000;

/// The text between the first "=" and the second one, or the end of the line. White space at
/// both ends is removed first, then quotes at both ends. Empty when there is no "=".
std::string valueOf(std::string_view line) {
  const auto start = line.find('=');
  if (start == std::string_view::npos) {
    return {};
  }
  line.remove_prefix(start + 1);
  const auto value = trimSpacesAndTabs(line.substr(0, line.find('=')));
  constexpr auto quotes = "\"'";
  const auto first = value.find_first_not_of(quotes);
  if (first == std::string_view::npos) {
    return {};
  }
  return std::string(value.substr(first, value.find_last_not_of(quotes) + 1 - first));
}

}  // namespace

bool isPlaceholderKey(std::string_view key) {
  return key == "your-api-key-here" || key == "pending-registration";
}

std::vector<std::string> configSearchPaths() {
  return {configFilePath(), homeDirectory() + "/.quillmark/config.toml"};
}

ConfigEntries readEntries(std::string_view text) {
  ConfigEntries entries;
  while (!text.empty()) {
    const auto end = text.find('\n');
    const auto line = trimSpacesAndTabs(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);

    const bool isApiKey = line.starts_with("api_key");
    if (!isApiKey && !line.starts_with("server_url")) {
      continue;
    }
    auto value = valueOf(line);
    if (value.empty() || (isApiKey ? isPlaceholderKey(value) : value.size() > maxUrlBytes)) {
      continue;
    }
    (isApiKey ? entries.apiKey : entries.serverUrl) = std::move(value);
  }
  return entries;
}

ConfigEntries readCurrentConfig() {
  for (const auto& path : configSearchPaths()) {
    if (const auto text = readTextFile(path, maxConfigBytes)) {
      return readEntries(*text);
    }
  }
  return {};
}

}  // namespace quillmark
