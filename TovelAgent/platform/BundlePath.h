// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// The folder of a bundle's programs, to append to the bundle's path.
inline constexpr std::string_view programsInBundle = "/Contents/MacOS";

/// The path of the application bundle that contains the program at the absolute path
/// `executable`: `X` for `X/Contents/MacOS/name`, otherwise the program's folder.
/// Without a trailing slash. Any thread.
[[nodiscard]] std::string bundlePathOf(const std::string& executable);

/// The path of the running program's bundle, with symbolic links resolved. Empty
/// when the system does not report the program's path. Any thread.
[[nodiscard]] std::string bundlePath();

}  // namespace quillmark
