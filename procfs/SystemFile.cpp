// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/SystemFile.h"

#include <array>
#include <climits>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <unistd.h>

#include "platform/TextFile.h"

namespace quillmark {

std::optional<std::string> readSystemFile(const std::string& path) {
  auto bytes = readRegularFile(path, SIZE_MAX);
  return bytes ? std::optional(std::move(*bytes)) : std::nullopt;
}

std::optional<std::string> readLink(const std::string& path) {
  std::array<char, PATH_MAX> text;
  const ssize_t length = readlink(path.c_str(), text.data(), text.size());
  if (length < 0) {
    return std::nullopt;
  }
  return std::string(text.data(), static_cast<std::size_t>(length));
}

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  if (!stream) {
    return names;
  }
  while (const dirent* const entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") {
      names.emplace_back(name);
    }
  }
  return names;
}

}  // namespace quillmark
