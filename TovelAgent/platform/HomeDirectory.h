// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// The current user's home directory without a trailing slash: `$HOME`, or the
/// entry in the password database when `$HOME` is unset or empty. Empty when
/// neither is available, and for "/". Any thread, as long as no thread changes the
/// environment at the same time.
[[nodiscard]] std::string homeDirectory();

}  // namespace quillmark
