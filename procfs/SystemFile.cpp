// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/SystemFile.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <memory>
#include <string_view>

#include <boost/scope_exit.hpp>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark {
namespace {

constexpr std::size_t blockSize = std::size_t{32} * 1024;

bool isRegular(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

std::optional<std::string> readSystemFile(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) {
    return std::nullopt;
  }
  BOOST_SCOPE_EXIT_ALL(descriptor) { close(descriptor); };
  if (!isRegular(descriptor)) {
    return std::nullopt;
  }
  std::string bytes;
  std::array<char, blockSize> block;
  for (;;) {
    const ssize_t count = read(descriptor, block.data(), block.size());
    if (count == 0) {
      return bytes;
    }
    if (count > 0) {
      bytes.append(block.data(), static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      return std::nullopt;
    }
  }
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
