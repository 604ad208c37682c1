// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ConfigCheck.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include <boost/system/result.hpp>

#include "ConfigToml.h"
#include "ConfigValues.h"
#include "FileLook.h"
#include "agentctl/ConfigFile.h"
#include "agentctl/ConfigReadBack.h"
#include "platform/TextFile.h"

namespace quillmark::doctor {
namespace {

struct ConfigPlace {
  std::string path;
  boost::system::result<std::string> text;
};

Finding judge(const ConfigPlace& place, const char* check, bool isTaken, const Harmless& harmless) {
  Finding finding;
  finding.check = check;
  const auto path = harmless(place.path);
  finding.facts["path"] = path;
  finding.text = path + ": ";
  if (!place.text && meansMissing(place.text.error())) {
    finding.facts["state"] = "missing";
    finding.text += "not there";
    return finding;
  }
  if (!place.text) {
    finding.facts["state"] = "unreadable";
    finding.text +=
        "cannot be read (" + place.text.error().message() + "), the panel passes it over";
    finding.mark = Mark::wrong;
    finding.step = "Make " + path + " a file that the panel's user can read, or remove it.";
  } else if (isTaken) {
    finding.facts["state"] = "not read";
    finding.text += "not read, the other one comes first";
    finding.mark = Mark::note;
    finding.step = "Remove " + path + ", which nothing reads.";
  } else {
    finding.facts["state"] = "read";
    finding.text += "read";
  }
  if (const auto mode = modeOf(place.path)) {
    finding.facts["mode"] = modeText(*mode);
    if (othersMayRead(*mode)) {
      finding.say(Mark::wrong, "mode " + modeText(*mode) + " lets every user read it, key and all",
                  "Close " + path + " to others (mode 0600).");
    }
  }
  return finding;
}

/// Every line that could be taken for a key, whole, for the file may be no TOML.
void hideKeys(std::string_view text, const ConfigToml& toml, Harmless& harmless) {
  harmless.hide(toml.apiKey.value_or(""));
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (line.find("api_key") == std::string_view::npos) {
      continue;
    }
    harmless.hide(readEntries(line).apiKey.value_or(""));
    const auto start = line.find_first_not_of(" \t='\"", line.find('='));
    if (start != std::string_view::npos) {
      harmless.hide(line.substr(start, line.find_last_not_of(" \t\r'\"") + 1 - start));
    }
  }
}

}  // namespace

void checkConfig(Findings& findings, Harmless& harmless) {
  static constexpr std::array checks = {"config", "config-old"};
  std::vector<ConfigPlace> places;
  for (const auto& path : configFilePaths()) {
    places.push_back({path, readTextFile(path, maxConfigBytes)});
  }
  const ConfigPlace* taken = nullptr;
  for (std::size_t i = 0; i < places.size(); ++i) {
    findings.push_back(judge(places[i], checks.at(i), taken != nullptr, harmless));
    taken = taken == nullptr && places[i].text ? &places[i] : taken;
  }
  if (taken == nullptr) {
    findings.back().say(Mark::note, "so this machine is not enrolled", enrol);
    return;
  }
  const auto toml = readToml(*taken->text);
  const auto entries = readEntries(*taken->text);
  hideKeys(*taken->text, toml, harmless);
  findings.push_back(judgeToml(toml, harmless(taken->path)));
  findings.push_back(judgeKey(toml, entries));
  findings.push_back(judgeUrl(toml, entries));
}

}  // namespace quillmark::doctor
