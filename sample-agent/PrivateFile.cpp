// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PrivateFile.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <boost/scope_exit.hpp>

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmark::sample {
namespace {

using boost::system::error_code;

constexpr mode_t ownerOnlyFolder = S_IRWXU;

error_code lastError() { return {errno, boost::system::system_category()}; }

error_code writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = write(descriptor, text.data(), text.size());
    if (count < 0 && errno != EINTR) {
      return lastError();
    }
    text.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
  }
  return {};
}

/// Creates a file. Its contents are on the disk when this returns.
error_code writeNewFile(const std::string& path, std::string_view text) {
  const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownerOnly);
  if (descriptor < 0) {
    return lastError();
  }
  BOOST_SCOPE_EXIT_ALL(descriptor) { close(descriptor); };
  // The umask may have removed the owner's rights.
  if (fchmod(descriptor, ownerOnly) != 0) {
    return lastError();
  }
  if (const auto error = writeAll(descriptor, text)) {
    return error;
  }
  return fsync(descriptor) == 0 ? error_code{} : lastError();
}

/// Writes the file's name to the disk, too. Errors do not matter: the file is usable anyway.
void syncFolder(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    fsync(descriptor);
    close(descriptor);
  }
}

}  // namespace

std::string randomHex(std::size_t count) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::array<unsigned char, 256> bytes{};
  count = std::min(count, bytes.size());
  // The system returns so few bytes all at once. Only while the machine boots, a signal
  // may interrupt the call before it returns any.
  while (getrandom(bytes.data(), count, 0) != static_cast<ssize_t>(count)) {
  }
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += digits[bytes[i] >> 4U];
    text += digits[bytes[i] & 0xFU];
  }
  return text;
}

error_code makePrivateFile(const std::string& path, std::string_view text) {
  const std::string folder = path.substr(0, path.rfind('/'));
  if (mkdir(folder.c_str(), ownerOnlyFolder) != 0 && errno != EEXIST) {
    return lastError();
  }
  const std::string temporary = path + '.' + randomHex(8);
  BOOST_SCOPE_EXIT_ALL(&temporary) { unlink(temporary.c_str()); };
  if (const auto error = writeNewFile(temporary, text)) {
    return error;
  }
  // link(), unlike rename(), does not replace an existing file.
  if (link(temporary.c_str(), path.c_str()) != 0) {
    return lastError();
  }
  syncFolder(folder);
  return {};
}

}  // namespace quillmark::sample
