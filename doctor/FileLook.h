// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include <boost/system/error_code.hpp>

#include <sys/types.h>

namespace quillmark::doctor {

/// The permission bits and type of what lies at `path`, links followed; no value
/// when it cannot be looked at.
[[nodiscard]] std::optional<mode_t> modeOf(const std::string& path);

/// Whether users who neither own the file nor are of its group may read it.
[[nodiscard]] bool othersMayRead(mode_t mode);

/// As one writes it: "0644".
[[nodiscard]] std::string modeText(mode_t mode);

/// Whether `error` means that there is nothing at a path.
[[nodiscard]] bool meansMissing(const boost::system::error_code& error);

/// Whether this user may do all of `rights` (`W_OK`, `X_OK`) there.
[[nodiscard]] bool mayAccess(const std::string& path, int rights);

}  // namespace quillmark::doctor
