// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ConfigCheck.h"

#include <array>
#include <vector>

#include <boost/system/result.hpp>

#include "ConfigContentCheck.h"
#include "ConfigToml.h"
#include "FileAccess.h"
#include "Secrets.h"
#include "agentctl/ConfigFile.h"
#include "agentctl/ConfigReadBack.h"
#include "platform/SystemError.h"
#include "platform/TextFile.h"

namespace quillmark::doctor {
namespace {

struct ConfigCandidate {
  std::string path;
  boost::system::result<std::string> text;
  ConfigToml toml;  ///< of the text, if there is one
};

Finding judge(const ConfigCandidate& candidate, const char* check, bool isShadowed,
              const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = check;
  const auto path = sanitize(candidate.path);
  finding.facts["path"] = path;
  finding.text = path + ": ";
  if (!candidate.text && meansMissing(candidate.text.error())) {
    finding.facts["state"] = "missing";
    finding.text += "not there";
    return finding;
  }
  if (!candidate.text) {
    finding.facts["state"] = "unreadable";
    finding.text +=
        "cannot be read (" + candidate.text.error().message() + "), the panel ignores it";
    finding.mark = Mark::wrong;
    finding.step = "Make " + path + " a file that the panel's user can read, or remove it.";
  } else if (isShadowed) {
    finding.facts["state"] = "not read";
    finding.text += "not read, the other one comes first";
    finding.mark = Mark::note;
    finding.step = "Remove " + path + ", which nothing reads.";
  } else {
    finding.facts["state"] = "read";
    finding.text += "read";
  }
  if (const auto mode = modeOf(candidate.path)) {
    finding.facts["mode"] = modeText(*mode);
    if (othersMayRead(*mode)) {
      finding.add(Mark::wrong, "mode " + modeText(*mode) + " lets every user read it, with the key",
                  "Close " + path + " to others (mode 0600).");
    }
  }
  return finding;
}

}  // namespace

void checkConfig(Findings& findings, TextSanitizer& sanitize) {
  static constexpr std::array checks = {"config", "config-old"};
  std::vector<ConfigCandidate> candidates;
  for (const auto& path : configSearchPaths()) {
    auto& candidate = candidates.emplace_back(
        ConfigCandidate{path, readTextFile(path, maxConfigBytes), ConfigToml{}});
    hideKeys(path, sanitize);
    if (candidate.text) {
      candidate.toml = readToml(*candidate.text);
      sanitize.hide(candidate.toml.apiKey.value_or(""));
    }
  }
  const ConfigCandidate* chosen = nullptr;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    findings.push_back(judge(candidates[i], checks.at(i), chosen != nullptr, sanitize));
    if (chosen == nullptr && candidates[i].text) {
      chosen = &candidates[i];
    }
  }
  if (chosen == nullptr) {
    findings.back().add(Mark::note, "so this machine is not enrolled", enrolStep);
    return;
  }
  const auto& toml = chosen->toml;
  const auto entries = readEntries(*chosen->text);
  findings.push_back(judgeToml(toml, sanitize(chosen->path)));
  findings.push_back(judgeKey(toml, entries));
  findings.push_back(judgeUrl(toml, entries));
}

}  // namespace quillmark::doctor
