// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AgentConfig.h"

#include <cstddef>
#include <optional>
#include <sstream>
#include <string_view>

#include <toml++/toml.h>

#include "platform/SystemError.h"
#include "platform/TextFile.h"

namespace quillmark::sample {
namespace {

// As much as the panel imports.
constexpr std::size_t maxConfigBytes = std::size_t{64} << 20;

std::string placeText(const std::string& path, const toml::source_region& region) {
  std::ostringstream text;
  text << path << ':' << region.begin.line << ':' << region.begin.column << ": ";
  return text.str();
}

/// Sets `flag` if the key is present; a failure if its value is not a boolean.
std::optional<Failure> readFlag(const toml::table& config, const std::string& path,
                                std::string_view section, std::string_view key, bool& flag) {
  const auto* const found = config[section][key].node();
  if (found == nullptr) {
    return std::nullopt;
  }
  const auto value = found->value_exact<bool>();
  if (!value) {
    return Failure{placeText(path, found->source()) + '[' + std::string(section) + "] " +
                   std::string(key) + " must be true or false"};
  }
  flag = *value;
  return std::nullopt;
}

boost::system::result<AgentConfig, Failure> parseConfig(const std::string& text,
                                                        const std::string& path) {
  try {
    const toml::table table = toml::parse(text);
    AgentConfig config;
    for (const auto& failure : {
             readFlag(table, path, "detection", "enabled", config.detection),
             readFlag(table, path, "protection", "enabled", config.protection),
             readFlag(table, path, "telemetry", "collect_network", config.collectNetwork),
             readFlag(table, path, "telemetry", "collect_services", config.collectServices),
         }) {
      if (failure) {
        return *failure;
      }
    }
    return config;
  } catch (const toml::parse_error& error) {
    return Failure{placeText(path, error.source()) + std::string(error.description())};
  }
}

}  // namespace

std::vector<std::string> configPaths(const std::string& home) {
  std::vector<std::string> paths;
  if (!home.empty()) {
    paths.push_back(home + "/.config/quillmark/config.toml");
    paths.push_back(home + "/.quillmark/config.toml");
  }
  paths.emplace_back("/etc/quillmark/config.toml");
  return paths;
}

boost::system::result<AgentConfig, Failure> loadConfig(const std::vector<std::string>& paths) {
  for (const auto& path : paths) {
    const auto text = readTextFile(path, maxConfigBytes);
    if (text) {
      return parseConfig(*text, path);
    }
    if (!meansMissing(text.error())) {
      return Failure{path + ": " + text.error().message()};
    }
  }
  return AgentConfig{};
}

}  // namespace quillmark::sample
