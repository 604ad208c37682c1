// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include "procfs/Processes.h"
#include "procfs/Sockets.h"

namespace quillmark::sample {

/// The running services, sorted, each named once. A process serves
/// - as its systemd service unit, where it belongs to one ("ssh.service");
/// - by its own name where it belongs to none and either runs as a daemon (it
///   leads a session without terminal, and is process 1 or a child of it) or
///   waits for TCP connections.
[[nodiscard]] std::vector<std::string> runningServices(const std::vector<Process>& processes,
                                                       const std::vector<Socket>& sockets);

}  // namespace quillmark::sample
