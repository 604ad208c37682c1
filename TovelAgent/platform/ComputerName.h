// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

namespace quillmark {

/// The host name of this machine; no value when it has none. Any thread.
[[nodiscard]] std::optional<std::string> computerName();

}  // namespace quillmark
