// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <sys/stat.h>

#include <boost/system/error_code.hpp>

namespace quillmark::sample {

/// The mode of a file that only its owner may read and write.
inline constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

/// `count` random bytes (256 at most) as lower-case hexadecimal digits.
[[nodiscard]] std::string randomHex(std::size_t count);

/// Creates the file `path` with the contents `text`, readable by this user only,
/// and its folder if that is missing. The file appears complete or not at all, and
/// never replaces another: then the error is `file_exists`.
[[nodiscard]] boost::system::error_code makePrivateFile(const std::string& path,
                                                        std::string_view text);

}  // namespace quillmark::sample
