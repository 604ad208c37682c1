// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <boost/system/error_code.hpp>

namespace quillmark {

/// Errors of files and paths that the operating system does not report.
enum class FileError {
  notRegular = 1,  ///< a folder, FIFO, device or socket
  tooLarge,        ///< more bytes than the reader accepts
  notUtf8,
  unquotablePath,       ///< cannot be put in a shell's single quotes
  shellOperatorInPath,  ///< a shell could run a part of it as a command
};

/// The error as a code with a message for the user.
[[nodiscard]] boost::system::error_code make_error_code(FileError error);

}  // namespace quillmark

template <>
struct boost::system::is_error_code_enum<quillmark::FileError> : std::true_type {};
