// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

#include <boost/system/result.hpp>

namespace quillmark {

/// Reads the whole file at `path` as UTF-8, at most `maxBytes` of it.
///
/// Only regular files are read, and opening never waits: a FIFO or a device
/// under that name is an error, not a hang. Errors are the system's own and those
/// of `FileError`. Any thread; it blocks for as long as the disk takes.
[[nodiscard]] boost::system::result<std::string> readTextFile(const std::string& path,
                                                              std::size_t maxBytes);

}  // namespace quillmark
