// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// Where the application bundle of `executable`, an absolute path, lies: `X`
/// for `X/Contents/MacOS/name`, the executable's folder otherwise. Without a
/// trailing slash. Any thread.
[[nodiscard]] std::string bundlePathOf(const std::string& executable);

/// The bundle of the running program, links resolved. Empty when the system
/// does not tell. Any thread.
[[nodiscard]] std::string bundlePath();

}  // namespace quillmark
