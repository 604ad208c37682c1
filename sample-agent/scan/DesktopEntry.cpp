// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/DesktopEntry.h"

#include <map>

#include "platform/Utf8.h"
#include "procfs/Text.h"

namespace quillmark::sample {
namespace {

constexpr std::string_view mainGroup = "[Desktop Entry]";

/// The keys of the main group. A localised key keeps its suffix, such as "[de]", and
/// so differs from the plain one.
std::map<std::string_view, std::string_view> mainKeys(std::string_view text) {
  std::map<std::string_view, std::string_view> keys;
  bool inMainGroup = false;
  for (const auto line : split(text, '\n')) {
    if (line.starts_with('[')) {
      inMainGroup = trimWhiteSpace(line) == mainGroup;
    }
    const std::size_t equals = line.find('=');
    if (inMainGroup && equals != std::string_view::npos && !line.starts_with('#')) {
      keys.emplace(trimWhiteSpace(line.substr(0, equals)), trimWhiteSpace(line.substr(equals + 1)));
    }
  }
  return keys;
}

std::string_view firstWord(std::string_view command) {
  if (command.starts_with('"')) {
    return command.substr(1, command.find('"', 1) - 1);
  }
  return command.substr(0, command.find(' '));
}

}  // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text) {
  auto keys = mainKeys(text);
  if (keys["Type"] != "Application" || keys["Name"].empty() || keys["NoDisplay"] == "true" ||
      keys["Hidden"] == "true") {
    return std::nullopt;
  }
  return DesktopEntry{std::string(keys["Name"]), std::string(firstWord(keys["Exec"]))};
}

}  // namespace quillmark::sample
