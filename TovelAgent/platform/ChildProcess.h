// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <boost/system/error_code.hpp>
#include <boost/system/result.hpp>

namespace quillmark {

/// A program and its arguments, without the name of the program itself.
struct Command {
  std::string executable;  ///< a path; PATH is not searched
  std::vector<std::string> arguments;

  friend bool operator==(const Command&, const Command&) = default;
};

/// Starts `command` in its own session, with this process's standard streams, and
/// does not wait if a thread is available. The child leaves no zombie. Returns an
/// error when the program could not be started. Threads: as `homeDirectory`.
[[nodiscard]] boost::system::error_code startDetached(const Command& command);

/// Runs `command` with its output discarded and waits for it to end. Returns its
/// exit status, or 128 plus the number of the signal that ended it; an error when it
/// could not be started or waited for, or has not ended within `limit` and is
/// therefore killed. Sets an ignored SIGCHLD to its default. Blocks the calling
/// thread; threads: as `homeDirectory`.
[[nodiscard]] boost::system::result<int> runSilently(
    const Command& command, std::chrono::milliseconds limit = std::chrono::seconds(5));

}  // namespace quillmark
