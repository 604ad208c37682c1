// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AccessToken.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/HomeDirectory.h"
#include "platform/TextFile.h"
#include "platform/Utf8.h"

namespace quillmark {
namespace {

constexpr auto systemTokenPath = "/var/run/quillmark/token";
constexpr auto tokenPathInHome = "/.quillmark/token";

// A token is one line of text. A larger file is not a token file, and reading it
// would only use memory.
constexpr std::size_t maxTokenFileBytes = std::size_t{1} << 20;

}  // namespace

std::vector<std::string> accessTokenPaths() {
  return {systemTokenPath, homeDirectory() + tokenPathInHome};
}

boost::system::result<std::string> readTokenFile(const std::string& path) {
  const auto text = readTextFile(path, maxTokenFileBytes);
  if (!text) {
    return text.error();
  }
  return std::string(trimWhiteSpace(*text));
}

std::optional<std::string> readAccessToken() {
  for (const auto& path : accessTokenPaths()) {
    if (auto token = readTokenFile(path)) {
      return std::move(*token);
    }
  }
  return std::nullopt;
}

bool fitsHeaderField(std::string_view token) {
  return std::none_of(token.begin(), token.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && byte != '\t') || byte == 0x7F;
  });
}

}  // namespace quillmark
