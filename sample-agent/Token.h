// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <boost/system/result.hpp>

#include <sys/types.h>

#include "Failure.h"

namespace quillmark::sample {

/// Where the token of an agent that runs as `user` lies: system-wide for root,
/// else in the home directory.
[[nodiscard]] std::string tokenPath(uid_t user, const std::string& home);

/// The token in the file at `path`: 256 random bits as 64 hexadecimal digits.
///
/// A missing file is made, with its folder, readable for this user alone; of
/// two agents that make it at once both get the same token. A file that is
/// there is never overwritten, because another program may have made it: it is
/// a failure unless it is a regular file of this user with a token in it. One
/// that others may read is closed to them.
[[nodiscard]] boost::system::result<std::string, Failure> loadOrMakeToken(const std::string& path);

}  // namespace quillmark::sample
