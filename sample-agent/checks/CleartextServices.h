// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include "model/ThreatAlert.h"
#include "procfs/Processes.h"
#include "procfs/Sockets.h"

namespace quillmark::sample {

/// One alert of severity "high" for each port on which a service that carries
/// passwords unencrypted listens on all interfaces.
[[nodiscard]] std::vector<ThreatAlert> exposedCleartextServices(
    const std::vector<Socket>& sockets, const std::vector<Process>& processes);

}  // namespace quillmark::sample
