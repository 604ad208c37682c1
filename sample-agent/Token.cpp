// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Token.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>

#include <boost/algorithm/hex.hpp>
#include <boost/scope_exit.hpp>
#include <boost/system/errc.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/AtomicFile.h"
#include "platform/SystemError.h"
#include "platform/Utf8.h"

namespace quillmark::sample {
namespace {

using boost::system::error_code;
using TokenResult = boost::system::result<std::string, Failure>;
namespace errc = boost::system::errc;

constexpr std::size_t tokenBytes = 32;

Failure failure(const std::string& path, const error_code& error) {
  return {path + ": " + error.message()};
}

Failure lastError(const std::string& path) { return failure(path, lastSystemError()); }

bool isToken(std::string_view text) {
  return text.size() == 2 * tokenBytes &&
         text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

/// Why the open file cannot be trusted with a secret; no value if it can.
std::optional<Failure> whyUnsafe(const struct stat& status, const std::string& path) {
  if (!S_ISREG(status.st_mode)) {
    return Failure{path + ": not a regular file"};
  }
  if (status.st_uid != geteuid()) {
    return Failure{path + ": belongs to another user"};
  }
  return std::nullopt;
}

/// No value if the file does not exist, or was removed because its mode allowed too much.
std::optional<TokenResult> readToken(const std::string& path) {
  const int descriptor =
      open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0 && errno == ENOENT) {
    return std::nullopt;
  }
  if (descriptor < 0) {
    return errno == ELOOP ? Failure{path + ": not a regular file"} : lastError(path);
  }
  BOOST_SCOPE_EXIT_ALL(descriptor) { close(descriptor); };
  struct stat status {};
  if (fstat(descriptor, &status) != 0) {
    return lastError(path);
  }
  if (auto reason = whyUnsafe(status, path)) {
    return std::move(*reason);
  }

  // Large enough for a token and an editor's line break, and for more bytes, which
  // show that the file is something else.
  std::array<char, 2 * tokenBytes + 16> buffer{};
  const ssize_t count = read(descriptor, buffer.data(), buffer.size());
  if (count < 0) {
    return lastError(path);
  }
  const std::string_view text(buffer.data(), static_cast<std::size_t>(count));
  const auto token = isUtf8(text) ? trimWhiteSpace(text) : text;
  if (!isToken(token) || text.size() == buffer.size()) {
    return Failure{path +
                   ": holds no token of this agent (64 hexadecimal digits); "
                   "move it away to have a new one made"};
  }
  // The administrator may let a group read it: that of the panel's users.
  constexpr mode_t allowed = S_IRUSR | S_IWUSR | S_IRGRP;
  if ((status.st_mode & ALLPERMS & ~allowed) != 0) {
    return unlink(path.c_str()) == 0 ? std::nullopt : std::optional<TokenResult>(lastError(path));
  }
  return TokenResult(boost::system::in_place_value, token);
}

/// Creates a file with a new token, and its folder if that is missing.
error_code makeTokenFile(const std::string& path) {
  std::array<unsigned char, tokenBytes> bytes{};
  if (getentropy(bytes.data(), bytes.size()) != 0) {
    return lastSystemError();
  }
  std::string token;
  boost::algorithm::hex_lower(bytes, std::back_inserter(token));
  const std::string folder = path.substr(0, path.rfind('/'));
  if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
    return lastSystemError();
  }
  return createFileAtomically(path, token);
}

}  // namespace

std::string tokenPath(uid_t user, const std::string& home) {
  return user == 0 ? "/var/run/quillmark/token" : home + "/.quillmark/token";
}

TokenResult loadOrMakeToken(const std::string& path) {
  if (auto token = readToken(path)) {
    return std::move(*token);
  }
  const auto error = makeTokenFile(path);
  if (error && error != errc::file_exists) {
    return failure(path, error);
  }
  // Read even a file just created: of two agents started at once, both use the same token.
  if (auto token = readToken(path)) {
    return std::move(*token);
  }
  return Failure{path + ": vanished while it was made"};
}

}  // namespace quillmark::sample
