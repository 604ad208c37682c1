// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Secrets.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/algorithm/string/trim.hpp>

#include "agentctl/ConfigReadBack.h"
#include "platform/TextFile.h"

namespace quillmark::doctor {
namespace {

/// Without zero bytes: what is left of ASCII text in UTF-16 is the text.
std::vector<std::string> linesOf(const std::string& path) {
  // Four times what the panel reads.
  constexpr auto maxBytes = std::size_t{256} << 20U;
  std::vector<std::string> lines;
  auto bytes = readRegularFile(path, maxBytes);
  if (!bytes) {
    return lines;
  }
  std::erase(*bytes, '\0');
  boost::algorithm::split(lines, *bytes, boost::algorithm::is_any_of("\r\n"));
  return lines;
}

}  // namespace

void hideKeys(const std::string& path, TextSanitizer& sanitize) {
  static constexpr std::string_view name = "api_key";
  for (const auto& line : linesOf(path)) {
    const auto at = line.find(name);
    if (at == std::string::npos) {
      continue;
    }
    sanitize.hide(readEntries(line).apiKey.value_or(""));
    // Also after a colon, as in another format, or a blank.
    const auto sign = line.find('=', at);
    const auto value = line.substr(sign == std::string::npos ? at + name.size() : sign);
    sanitize.hide(boost::algorithm::trim_copy_if(value, boost::algorithm::is_any_of(" \t=:'\"")));
  }
}

void hideTokens(const std::string& path, TextSanitizer& sanitize) {
  // Shorter ones would hide parts of ordinary words.
  constexpr std::size_t shortest = 8;
  for (const auto& line : linesOf(path)) {
    // Also without a byte order mark.
    const auto token =
        boost::algorithm::trim_copy_if(line, !boost::algorithm::is_from_range('!', '~'));
    if (token.size() >= shortest) {
      sanitize.hide(token);
    }
  }
}

}  // namespace quillmark::doctor
