// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ConfigContentCheck.h"

#include <optional>

namespace quillmark::doctor {
namespace {

/// Why the Settings tab reads back something else than `written`.
std::string causeOf(const std::string& written, const std::optional<std::string>& readBack) {
  if (written.find('=') != std::string::npos) {
    return R"(it cuts a value at its first "=")";
  }
  if (readBack == written + "\"\r" || readBack == written + "'\r") {
    return "the line ends in CR LF, and it keeps the quotation mark and the CR";
  }
  return "it reads line by line";
}

/// Compares the value in the file with the value that the Settings tab reads from it.
void addReadBack(Finding& finding, const std::optional<std::string>& written,
                 const std::optional<std::string>& readBack) {
  if (readBack) {
    finding.facts["read_back_length"] = readBack->size();
  }
  if (written) {
    finding.facts["length"] = written->size();
  }
  if (!written) {
    // The file is not valid TOML, or the line is outside the section [agent].
    finding.add(Mark::ok, counted(readBack->size(), "byte") + ", as the Settings tab reads it");
    return;
  }
  if (written == readBack) {
    finding.add(Mark::ok, counted(written->size(), "byte") + ", read back as written");
    return;
  }
  finding.add(Mark::note,
              counted(written->size(), "byte") + ", but the Settings tab reads back " +
                  std::to_string(readBack ? readBack->size() : 0) + ": " +
                  causeOf(*written, readBack),
              "Type it again before Save & Connect, which would write what the tab shows.");
}

}  // namespace

Finding judgeToml(const ConfigToml& toml, const std::string& path) {
  Finding finding;
  finding.check = "config-toml";
  if (toml.error) {
    const auto line = std::to_string(toml.error->line);
    finding.facts["line"] = toml.error->line;
    finding.facts["column"] = toml.error->column;
    finding.add(Mark::wrong,
                "not valid TOML: line " + line + ", column " + std::to_string(toml.error->column),
                "Fix line " + line + " of " + path + ": the agent may refuse to start with it.");
  } else if (!toml.hasAgent) {
    finding.add(Mark::wrong, "no section [agent]",
                "Add the section [agent] to " + path + ", or write it again with Save & Connect.");
  } else {
    finding.add(Mark::ok, "TOML, with a section [agent]");
  }
  return finding;
}

Finding judgeKey(const ConfigToml& toml, const ConfigEntries& entries) {
  Finding finding;
  finding.check = "config-key";
  if (toml.apiKey && isPlaceholderKey(*toml.apiKey)) {
    finding.add(Mark::wrong, "a placeholder, not a key", enrolStep);
  } else if (toml.apiKey ? toml.apiKey->empty() : !entries.apiKey) {
    finding.add(Mark::wrong, toml.apiKey ? "empty" : "none", enrolStep);
  } else {
    addReadBack(finding, toml.apiKey, entries.apiKey);
  }
  return finding;
}

Finding judgeUrl(const ConfigToml& toml, const ConfigEntries& entries) {
  Finding finding;
  finding.check = "config-url";
  if (toml.serverUrl ? toml.serverUrl->empty() : !entries.serverUrl) {
    finding.add(Mark::note, "none, the Settings tab shows its own default", enrolStep);
  } else {
    addReadBack(finding, toml.serverUrl, entries.serverUrl);
  }
  return finding;
}

}  // namespace quillmark::doctor
