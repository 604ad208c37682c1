// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// The current user's home directory without a trailing slash: `$HOME`, or the
/// password database's entry where that is unset or empty. Empty when neither
/// names one. Any thread, as long as none changes the environment meanwhile.
[[nodiscard]] std::string homeDirectory();

}  // namespace quillmark
