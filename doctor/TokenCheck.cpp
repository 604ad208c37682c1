// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "TokenCheck.h"

#include <array>
#include <vector>

#include <boost/system/result.hpp>

#include "FileAccess.h"
#include "Secrets.h"
#include "client/AccessToken.h"
#include "platform/SystemError.h"

namespace quillmark::doctor {
namespace {

struct TokenFile {
  std::string path;
  boost::system::result<std::string> token;
  bool isSystemWide = false;
};

/// What a panel that starts now does with a token file.
enum class FileUse {
  tried,         ///< opens it: it is the one in use, or one before it that cannot be read
  notReached,    ///< does not open it, because an earlier one is in use
  noneReadable,  ///< opens it, and can read neither this one nor any other
};

constexpr auto makeTokenStep =
    "Start the agent, which makes its token, then start the panel again.";

void addMode(Finding& finding, const TokenFile& file, const std::string& shownPath) {
  const auto mode = modeOf(file.path);
  if (!mode) {
    return;
  }
  finding.facts["mode"] = modeText(*mode);
  if (!othersMayRead(*mode)) {
    return;
  }
  const auto fault = "mode " + modeText(*mode) + " lets every user read it";
  // Root's agent may have to let the panel's user read its token; a user's own token needs no
  // other reader.
  if (file.isSystemWide) {
    finding.add(Mark::note, fault,
                "Open " + shownPath + " to the panel's user alone, by a group (mode 0640).");
  } else {
    finding.add(Mark::wrong, fault, "Close " + shownPath + " to others (mode 0600).");
  }
}

std::string addContents(Finding& finding, const std::string& token, const std::string& shownPath) {
  const auto step = "Remove " + shownPath + " and start the agent again, which makes a new token.";
  if (token.empty()) {
    finding.add(Mark::wrong, "blank, so the panel sends an empty token and looks no further", step);
    return "blank";
  }
  if (!fitsHeaderField(token)) {
    finding.add(
        Mark::wrong,
        "contains a control character, which no request can carry, so the panel asks nothing",
        step);
    return "unfit";
  }
  return "usable";
}

Finding judge(const TokenFile& file, FileUse use, const char* check,
              const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = check;
  const std::string path = sanitize(file.path);
  finding.facts["path"] = path;
  finding.text = path + ": ";
  if (!file.token) {
    const bool isMissing = meansMissing(file.token.error());
    finding.facts["state"] = isMissing ? "missing" : "unreadable";
    if (isMissing) {
      finding.text += "not there";
    } else {
      finding.text += "cannot be read (" + file.token.error().message() + ")";
      finding.mark = use == FileUse::noneReadable ? Mark::wrong : Mark::note;
      finding.step = "Let the panel's user read " + path + ", then start the panel again.";
      addMode(finding, file, path);
    }
    return finding;
  }
  finding.text += counted(file.token->size(), "byte");
  finding.facts["length"] = file.token->size();
  if (use == FileUse::notReached) {
    finding.facts["state"] = "not read";
    finding.add(Mark::ok, "not read, the system-wide one comes first");
  } else {
    finding.facts["state"] = addContents(finding, *file.token, path);
  }
  addMode(finding, file, path);
  return finding;
}

TokenInUse choose(const std::vector<TokenFile>& files) {
  for (const auto& file : files) {
    if (!file.token) {
      continue;
    }
    if (!fitsHeaderField(*file.token)) {
      return {std::nullopt, file.path, "the token contains a control character"};
    }
    return {*file.token, file.path, {}};
  }
  return {std::nullopt, {}, "there is no token that the panel can read"};
}

Finding summary(const TokenInUse& token, const std::vector<TokenFile>& files,
                const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "token";
  if (token.path.empty()) {
    bool allMissing = true;
    for (const auto& file : files) {
      allMissing = allMissing && meansMissing(file.token.error());
    }
    finding.add(Mark::wrong, "none that can be read, so the panel asks the agent nothing",
                allMissing ? makeTokenStep : "");
  } else if (!token.value) {
    finding.add(Mark::wrong,
                "the panel takes that of " + sanitize(token.path) + " and cannot send it");
  } else {
    finding.add(Mark::ok, "the panel uses that of " + sanitize(token.path));
  }
  finding.facts["path"] = textOrNull(sanitize(token.path));
  return finding;
}

}  // namespace

TokenInUse checkTokens(Findings& findings, TextSanitizer& sanitize) {
  static constexpr std::array checks = {"token-system", "token-home"};
  std::vector<TokenFile> files;
  for (const auto& path : accessTokenPaths()) {
    files.push_back({path, readTokenFile(path), files.empty()});
    hideTokens(path, sanitize);
    if (files.back().token) {
      sanitize.hide(*files.back().token);
    }
  }

  auto token = choose(files);
  bool isChosen = false;
  for (std::size_t i = 0; i < files.size(); ++i) {
    const auto use = token.path.empty() ? FileUse::noneReadable
                     : isChosen         ? FileUse::notReached
                                        : FileUse::tried;
    findings.push_back(judge(files[i], use, checks.at(i), sanitize));
    isChosen = isChosen || files[i].path == token.path;
  }
  findings.push_back(summary(token, files, sanitize));
  return token;
}

}  // namespace quillmark::doctor
