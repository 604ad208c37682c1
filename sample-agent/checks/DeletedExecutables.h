// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include "model/ThreatAlert.h"
#include "procfs/Processes.h"

namespace quillmark::sample {

/// One alert for each executable that runs although its file is gone: "high"
/// where nothing is left under its name, or where the program never was a file;
/// "low" where another file has taken its place, as an update does.
[[nodiscard]] std::vector<ThreatAlert> deletedExecutables(const std::vector<Process>& processes,
                                                          const std::string& procRoot);

}  // namespace quillmark::sample
