// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include "model/NetworkConnection.h"
#include "procfs/Processes.h"
#include "procfs/Sockets.h"

namespace quillmark::sample {

/// The sockets as the interface lists them: listening ones first, then by local
/// port. Port 0, which means "any", is written "*". The agent's own open and
/// finished connections with its clients are left out: every poll leaves four
/// behind for a minute, and they would only show the polling itself.
[[nodiscard]] std::vector<NetworkConnection> connectionsOf(std::vector<Socket> sockets,
                                                           const std::vector<Process>& processes);

}  // namespace quillmark::sample
