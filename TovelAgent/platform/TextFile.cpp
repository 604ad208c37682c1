// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TextFile.h"

#include <array>
#include <cerrno>

#include <boost/scope_exit.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/FileError.h"
#include "platform/SystemError.h"
#include "platform/Utf8.h"

namespace quillmark {
namespace {

using boost::system::error_code;

error_code checkRegular(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) {
    return lastSystemError();
  }
  return S_ISREG(status.st_mode) ? error_code{} : make_error_code(FileError::notRegular);
}

}  // namespace

boost::system::result<std::string> readRegularFile(const std::string& path, std::size_t maxBytes) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) {
    return lastSystemError();
  }
  BOOST_SCOPE_EXIT_ALL(descriptor) { close(descriptor); };
  if (const auto error = checkRegular(descriptor)) {
    return error;
  }

  std::string bytes;
  // Large, to read large files with few system calls.
  std::array<char, std::size_t{32} * 1024> block;
  while (const ssize_t count = read(descriptor, block.data(), block.size())) {
    if (count > 0) {
      bytes.append(block.data(), static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      return lastSystemError();
    }
    if (bytes.size() > maxBytes) {
      return make_error_code(FileError::tooLarge);
    }
  }
  return bytes;
}

boost::system::result<std::string> readTextFile(const std::string& path, std::size_t maxBytes) {
  auto text = readRegularFile(path, maxBytes);
  if (text && !isUtf8(*text)) {
    return make_error_code(FileError::notUtf8);
  }
  return text;
}

}  // namespace quillmark
