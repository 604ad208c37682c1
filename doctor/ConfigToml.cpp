// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ConfigToml.h"

#include <toml++/toml.h>

namespace quillmark::doctor {

ConfigToml readToml(std::string_view text) {
  ConfigToml result;
  try {
    const toml::table table = toml::parse(text);
    const auto agent = table["agent"];
    result.hasAgent = agent.is_table();
    result.apiKey = agent["api_key"].value_exact<std::string>();
    result.serverUrl = agent["server_url"].value_exact<std::string>();
  } catch (const toml::parse_error& error) {
    // Drop the error's message: it may quote the text and with it the key.
    result.error = {error.source().begin.line, error.source().begin.column};
  }
  return result;
}

}  // namespace quillmark::doctor
