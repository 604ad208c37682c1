// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <boost/system/result.hpp>

#include <sys/types.h>

#include "Failure.h"

namespace quillmark::sample {

/// The path of the token of an agent that runs as `user`: system-wide for root,
/// else in the home directory.
[[nodiscard]] std::string tokenPath(uid_t user, const std::string& home);

/// The token in the file at `path`: 256 random bits as 64 hexadecimal digits.
///
/// A missing file is created, with its folder, readable by this user only; if two
/// agents create it at once, both get the same token. An existing file is a failure
/// unless it is a regular file of this user with a token in it, because another program
/// may have created it. If its mode allows more than 0640, a new token replaces it.
[[nodiscard]] boost::system::result<std::string, Failure> loadOrMakeToken(const std::string& path);

}  // namespace quillmark::sample
