// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cerrno>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// The error of the last failed system call. Call at once, on the same thread.
[[nodiscard]] inline boost::system::error_code lastSystemError() {
  return {errno, boost::system::system_category()};
}

}  // namespace quillmark
