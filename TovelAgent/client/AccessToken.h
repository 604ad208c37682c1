// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/system/result.hpp>

namespace quillmark {

/// Where the agent's access token may lie; the first that can be read counts.
/// Any thread, as long as none changes the environment meanwhile.
[[nodiscard]] std::vector<std::string> accessTokenPaths();

/// The token in the file at `path`, white space at both ends dropped; the
/// errors are those of `readTextFile`. Any thread; it reads a file.
[[nodiscard]] boost::system::result<std::string> readTokenFile(const std::string& path);

/// Reads the agent's access token: the system-wide file if it can be read,
/// even if it is blank, else the one in the user's home directory. White space
/// at both ends is dropped. No value when neither file can be read as UTF-8
/// text. Any thread; it reads files.
[[nodiscard]] std::optional<std::string> readAccessToken();

/// Whether `token` can travel in an HTTP header field as it is: it holds no
/// control character (a tab apart), which would end or forge the header.
[[nodiscard]] bool fitsHeaderField(std::string_view token);

}  // namespace quillmark
