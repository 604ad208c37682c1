// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>
#include <vector>

#include "model/ThreatAlert.h"

namespace quillmark::sample {

/// One alert of severity "high" for each folder in `searchPath` (joined by
/// colons) in which every user may create files. Entries that are not
/// absolute paths are ignored; a folder listed twice is reported once.
[[nodiscard]] std::vector<ThreatAlert> writableProgramFolders(std::string_view searchPath);

}  // namespace quillmark::sample
