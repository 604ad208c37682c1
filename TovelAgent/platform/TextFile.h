// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

#include <boost/system/result.hpp>

namespace quillmark {

/// Reads the whole file at `path`, of at most `maxBytes`.
///
/// Only regular files are read. Opening never blocks: a FIFO or a device at that
/// path is an error. Errors are those of the system and of `FileError`. Any
/// thread; waits for the disk.
[[nodiscard]] boost::system::result<std::string> readRegularFile(const std::string& path,
                                                                 std::size_t maxBytes);

/// Like `readRegularFile`, for a file that must be UTF-8.
[[nodiscard]] boost::system::result<std::string> readTextFile(const std::string& path,
                                                              std::size_t maxBytes);

}  // namespace quillmark
