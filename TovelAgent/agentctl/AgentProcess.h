// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <boost/system/error_code.hpp>

#include "platform/ChildProcess.h"

namespace quillmark {

/// The file name of the agent's program, by which it is found and ended.
inline constexpr std::string_view agentFileName = "tovel-agent";

/// The folder of a bundle's programs, and the agent's log file, each as it goes
/// on from the path of the bundle or of the home directory.
inline constexpr std::string_view programsInBundle = "/Contents/MacOS";
inline constexpr std::string_view agentLogInHome = "/.quillmark/logs/backend.log";

/// Whether `path` stays one word within a shell's apostrophes: it holds none.
[[nodiscard]] bool staysQuoted(std::string_view path);

/// The command that starts the agent of the bundle at `bundle` in the
/// background, its output in the log file under `home`. The home path is not
/// quoted and the log's folder not made; without that folder nothing starts.
[[nodiscard]] Command startCommand(const std::string& bundle, const std::string& home);

/// Ends every process whose command line bears the agent's file name.
[[nodiscard]] Command stopCommand();

/// Ends with status 0 if any process's command line bears that name.
[[nodiscard]] Command probeCommand();

/// Starts the agent of this program's bundle and does not wait for it. An
/// error when the shell cannot be started, or `unquotablePath` when the
/// bundle's path would break out of the shell's quotes. Any thread.
[[nodiscard]] boost::system::error_code startAgentProcess();

/// Runs the stop command to its end, whatever it finds. An error when it
/// cannot be started. Blocks the calling thread.
[[nodiscard]] boost::system::error_code stopAgentProcess();

/// Whether the probe command finds an agent; false, with the reason in `error`,
/// when it cannot be run. Blocks the calling thread.
[[nodiscard]] bool probeAgentProcess(boost::system::error_code& error);

/// The same for those whom the reason does not concern.
[[nodiscard]] bool probeAgentProcess();

}  // namespace quillmark
