// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>
#include <string>

#include <boost/assert/source_location.hpp>

namespace quillmark::sample {

/// Why the agent cannot start, in one line for the person who reads its log.
struct Failure {
  std::string text;
};

/// Newer versions of Boost call this when a result is used as if it had a value.
// NOLINTNEXTLINE(readability-identifier-naming)
[[noreturn]] inline void throw_exception_from_error(const Failure& /*error*/,
                                                    const boost::source_location& /*place*/) {
  throw std::logic_error("no value");
}

}  // namespace quillmark::sample
