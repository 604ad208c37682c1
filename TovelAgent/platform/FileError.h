// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <boost/system/error_code.hpp>

namespace quillmark {

/// What can be wrong with a file beside what the system itself objects to.
enum class FileError {
  notRegular = 1,  ///< a folder, FIFO, device or socket
  tooLarge,        ///< more bytes than its reader takes
  notUtf8,
  unquotablePath,  ///< a path that would break out of a shell's quotes
};

/// The error as a code whose message is for the user to read. It equals the
/// portable conditions `not_supported`, `file_too_large`,
/// `illegal_byte_sequence` and `invalid_argument`, in this order.
[[nodiscard]] boost::system::error_code make_error_code(FileError error);

}  // namespace quillmark

template <>
struct boost::system::is_error_code_enum<quillmark::FileError> : std::true_type {};
