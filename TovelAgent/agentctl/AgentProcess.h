// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <boost/system/error_code.hpp>

#include "platform/ChildProcess.h"

namespace quillmark {

/// The file name of the agent's program, used to find and stop its processes.
inline constexpr std::string_view agentFileName = "tovel-agent";

/// The agent's log file, to append to the path of the home directory.
inline constexpr std::string_view agentLogInHome = "/.quillmark/logs/backend.log";

/// Whether `path` can be put in a shell's single quotes: it contains no such quote.
[[nodiscard]] bool isQuotable(std::string_view path);

/// Whether `path` contains a character with which a shell that reads it without quotes could
/// run a command or redirect once more. Others, such as a space, only make the redirection
/// fail or go to another file.
[[nodiscard]] bool hasShellOperator(std::string_view path);

/// The command that starts the agent of the bundle at `bundle` in the background, with its
/// output in the log file under `home`. The command line is fixed: the home path is in it
/// without quotes, so check it with `hasShellOperator` first. The log's folder is not
/// created; without it the agent does not start.
[[nodiscard]] Command startCommand(const std::string& bundle, const std::string& home);

/// The command that ends every process whose command line contains the agent's
/// file name.
[[nodiscard]] Command stopCommand();

/// The command that exits with status 0 if any command line contains the agent's
/// file name.
[[nodiscard]] Command probeCommand();

/// Starts the agent of this program's bundle and does not wait for it, so an agent that
/// fails to start is not an error. Returns `unquotablePath` when the bundle's path
/// contains a single quote, `shellOperatorInPath` when the shell could run a part of the home
/// path, and the system's error when the shell cannot be started. Any thread, as long as
/// no thread changes the environment at the same time.
[[nodiscard]] boost::system::error_code startAgentProcess();

/// Runs the stop command to its end; finding no agent is not an error. Returns the error
/// of `runSilently`. Blocks the calling thread.
[[nodiscard]] boost::system::error_code stopAgentProcess();

/// Whether the probe command finds an agent. False, with the error of `runSilently` in
/// `error`, when the command fails to run. Blocks the calling thread.
[[nodiscard]] bool probeAgentProcess(boost::system::error_code& error);

}  // namespace quillmark
