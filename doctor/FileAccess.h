// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include <sys/types.h>

namespace quillmark::doctor {

/// The permission bits and type of the file at `path`, symbolic links followed; no
/// value if they cannot be read.
[[nodiscard]] std::optional<mode_t> modeOf(const std::string& path);

/// Whether users who neither own the file nor are of its group may read it.
[[nodiscard]] bool othersMayRead(mode_t mode);

/// The permission bits in octal: "0644".
[[nodiscard]] std::string modeText(mode_t mode);

/// Whether this user has all of `rights` (`W_OK`, `X_OK`) at `path`.
[[nodiscard]] bool mayAccess(const std::string& path, int rights);

}  // namespace quillmark::doctor
