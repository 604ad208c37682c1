// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/system/result.hpp>

namespace quillmark {

/// The files that may contain the agent's access token; the first readable one is
/// used. Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] std::vector<std::string> accessTokenPaths();

/// The token in the file at `path`, without white space at both ends; the errors
/// are those of `readTextFile`. Any thread; it reads a file.
[[nodiscard]] boost::system::result<std::string> readTokenFile(const std::string& path);

/// The token in the first of `accessTokenPaths()` that can be read as UTF-8 text, even if
/// that file is blank. White space at both ends is removed. No value when none can be read.
/// Reads files. Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] std::optional<std::string> readAccessToken();

/// Whether `token` can be sent unchanged in an HTTP header field: it contains no
/// control character except tab. Any other one could end the header or add a forged
/// field. Any thread.
[[nodiscard]] bool fitsHeaderField(std::string_view token);

}  // namespace quillmark
