// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AccessToken.h"

#include <algorithm>
#include <cstddef>

#include "platform/HomeDirectory.h"
#include "platform/TextFile.h"
#include "platform/Utf8.h"

namespace quillmark {
namespace {

constexpr auto systemTokenPath = "/var/run/quillmark/token";
constexpr auto tokenPathInHome = "/.quillmark/token";

// A token is a line of text; whatever is larger is not one, and reading it
// would only cost memory.
constexpr std::size_t maxTokenFileBytes = std::size_t{1} << 20;

}  // namespace

std::optional<std::string> readAccessToken() {
  for (const auto& path : {std::string(systemTokenPath), homeDirectory() + tokenPathInHome}) {
    if (const auto text = readTextFile(path, maxTokenFileBytes)) {
      return std::string(trimmed(*text));
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
