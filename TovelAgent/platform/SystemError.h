// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cerrno>

#include <boost/system/errc.hpp>
#include <boost/system/error_code.hpp>

namespace quillmark {

/// The error of the last failed system call. Call at once, on the same thread.
[[nodiscard]] inline boost::system::error_code lastSystemError() {
  return {errno, boost::system::system_category()};
}

/// Whether `error` means that nothing exists at the path. Any thread.
[[nodiscard]] inline bool meansMissing(const boost::system::error_code& error) {
  namespace errc = boost::system::errc;
  return error == errc::no_such_file_or_directory || error == errc::not_a_directory;
}

}  // namespace quillmark
