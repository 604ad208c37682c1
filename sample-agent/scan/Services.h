// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include "procfs/Processes.h"
#include "procfs/Sockets.h"

namespace quillmark::sample {

/// The running services, sorted, each listed once. A process is listed
/// - as its systemd service unit ("ssh.service") if it belongs to one;
/// - by its own name if it belongs to none and either runs as a daemon (it leads a
///   session without a terminal, and is process 1 or a child of it) or listens for
///   TCP connections.
[[nodiscard]] std::vector<std::string> runningServices(const std::vector<Process>& processes,
                                                       const std::vector<Socket>& sockets);

}  // namespace quillmark::sample
