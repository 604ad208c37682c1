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

/// Starts `command` in its own session, with this process's standard streams. Returns
/// an error when the program could not be started.
///
/// A background thread waits for the child to end, so that it leaves no zombie. If no
/// thread can be created, this call itself waits. Any thread, as long as no thread
/// changes the environment at the same time.
[[nodiscard]] boost::system::error_code startDetached(const Command& command);

/// Runs `command` with its output discarded and waits for it to end. Returns its
/// exit status, or 128 plus the number of the signal that ended it; an error when it
/// could not be started or waited for, or has not ended within `limit` and is
/// therefore killed. Sets an ignored SIGCHLD to its default. Blocks the calling
/// thread. Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] boost::system::result<int> runSilently(
    const Command& command, std::chrono::milliseconds limit = std::chrono::seconds(5));

}  // namespace quillmark
