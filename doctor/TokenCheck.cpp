// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "TokenCheck.h"

#include <array>
#include <vector>

#include <boost/system/result.hpp>

#include "FileAccess.h"
#include "client/AccessToken.h"
#include "platform/SystemError.h"

namespace quillmark::doctor {
namespace {

struct TokenPlace {
  std::string path;
  boost::system::result<std::string> token;
  enum class Owner { system, user } owner;
};

/// What a panel that starts now does with a token file.
enum class FileUse {
  tried,         ///< opens it: it is the one in use, or one before it that cannot be read
  notReached,    ///< does not open it, because an earlier one is in use
  noneReadable,  ///< opens it, and can read neither this one nor any other
};

constexpr auto makeTokenStep =
    "Start the agent, which makes its token, then start the panel again.";

void sayMode(Finding& finding, const TokenPlace& place, const std::string& shownPath) {
  const auto mode = modeOf(place.path);
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
  if (place.owner == TokenPlace::Owner::system) {
    finding.say(Mark::note, fault,
                "Open " + shownPath + " to the panel's user alone, by a group (mode 0640).");
  } else {
    finding.say(Mark::wrong, fault, "Close " + shownPath + " to others (mode 0600).");
  }
}

std::string sayContents(Finding& finding, const std::string& token, const std::string& shownPath) {
  const auto step = "Remove " + shownPath + " and start the agent again, which makes a new token.";
  if (token.empty()) {
    finding.say(Mark::wrong, "blank, so the panel sends an empty token and looks no further", step);
    return "blank";
  }
  if (!fitsHeaderField(token)) {
    finding.say(Mark::wrong,
                "holds a control character, which no request can carry, so the panel asks nothing",
                step);
    return "unfit";
  }
  return "usable";
}

Finding judge(const TokenPlace& place, FileUse use, const char* check,
              const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = check;
  const std::string path = sanitize(place.path);
  finding.facts["path"] = path;
  finding.text = path + ": ";
  if (!place.token) {
    const bool isMissing = meansMissing(place.token.error());
    finding.facts["state"] = isMissing ? "missing" : "unreadable";
    if (isMissing) {
      finding.text += "not there";
    } else {
      finding.text += "cannot be read (" + place.token.error().message() + ")";
      finding.mark = use == FileUse::noneReadable ? Mark::wrong : Mark::note;
      finding.step = "Let the panel's user read " + path + ", then start the panel again.";
      sayMode(finding, place, path);
    }
    return finding;
  }
  finding.text += counted(place.token->size(), "byte");
  finding.facts["length"] = place.token->size();
  if (use == FileUse::notReached) {
    finding.facts["state"] = "not read";
    finding.say(Mark::ok, "not read, the system-wide one comes first");
  } else {
    finding.facts["state"] = sayContents(finding, *place.token, path);
  }
  sayMode(finding, place, path);
  return finding;
}

TokenInUse choose(const std::vector<TokenPlace>& places) {
  for (const auto& place : places) {
    if (!place.token) {
      continue;
    }
    if (!fitsHeaderField(*place.token)) {
      return {std::nullopt, place.path, "the token holds a control character"};
    }
    return {*place.token, place.path, {}};
  }
  return {std::nullopt, {}, "there is no token that the panel can read"};
}

Finding summary(const TokenInUse& inUse, const std::vector<TokenPlace>& places,
                const TextSanitizer& sanitize) {
  Finding finding;
  finding.check = "token";
  if (inUse.path.empty()) {
    bool allMissing = true;
    for (const auto& place : places) {
      allMissing = allMissing && meansMissing(place.token.error());
    }
    finding.say(Mark::wrong, "none that can be read, so the panel asks the agent nothing",
                allMissing ? makeTokenStep : "");
  } else if (!inUse.token) {
    finding.say(Mark::wrong,
                "the panel takes that of " + sanitize(inUse.path) + " and cannot send it");
  } else {
    finding.say(Mark::ok, "the panel uses that of " + sanitize(inUse.path));
  }
  finding.facts["path"] = textOrNull(sanitize(inUse.path));
  return finding;
}

}  // namespace

TokenInUse checkTokens(Findings& findings, TextSanitizer& sanitize) {
  static constexpr std::array checks = {"token-system", "token-home"};
  std::vector<TokenPlace> places;
  for (const auto& path : accessTokenPaths()) {
    places.push_back({path, readTokenFile(path),
                      places.empty() ? TokenPlace::Owner::system : TokenPlace::Owner::user});
    if (places.back().token) {
      sanitize.hide(*places.back().token);
    }
  }

  auto inUse = choose(places);
  bool isChosen = false;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto use = inUse.path.empty() ? FileUse::noneReadable
                     : isChosen         ? FileUse::notReached
                                        : FileUse::tried;
    findings.push_back(judge(places[i], use, checks.at(i), sanitize));
    isChosen = isChosen || places[i].path == inUse.path;
  }
  findings.push_back(summary(inUse, places, sanitize));
  return inUse;
}

}  // namespace quillmark::doctor
