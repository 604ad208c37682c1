// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <sys/stat.h>

#include <boost/system/error_code.hpp>

namespace quillmark::sample {

/// The mode of a file that nobody but its owner reads.
inline constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

/// `count` random bytes (256 at most) as lower-case hexadecimal digits.
[[nodiscard]] std::string randomHex(std::size_t count);

/// Makes the file `path` with `text` in it, readable for this user alone, and
/// its folder as well where that is missing. It appears whole or not at all,
/// and never in the place of another: then the error is `file_exists`.
[[nodiscard]] boost::system::error_code makePrivateFile(const std::string& path,
                                                        std::string_view text);

}  // namespace quillmark::sample
