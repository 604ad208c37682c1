// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include "model/ThreatAlert.h"
#include "procfs/Processes.h"

namespace quillmark::sample {

/// One alert for each running executable whose file was removed: "high" if no file
/// has its path any more, or if the program never was a file; "low" if another file
/// has replaced it, as an update does.
[[nodiscard]] std::vector<ThreatAlert> deletedExecutables(const std::vector<Process>& processes,
                                                          const std::string& procRoot);

}  // namespace quillmark::sample
