// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// Creates the folder `path` and all missing folders above it, accessible only
/// to the user (mode 0700). Existing folders are left as they are. A folder that cannot
/// be flushed afterwards is not an error. Any thread.
[[nodiscard]] boost::system::error_code createPrivateFolders(const std::string& path);

/// Replaces the content of the file at `path` with `text`, or creates the file.
/// Readers see either the complete old file or the complete new one, even after
/// a power loss.
///
/// The file is accessible only to the user: mode 0600, or the old file's mode
/// if that is stricter. A symbolic link to a regular file is followed; a broken
/// link is an error. On an error the old file is unchanged and no other file is
/// left behind. A folder that cannot be flushed after the replacement is not an
/// error. Any thread; waits for the disk.
[[nodiscard]] boost::system::error_code writeFileAtomically(const std::string& path,
                                                            std::string_view text);

/// Like `writeFileAtomically`, but never replaces a file: if there is one at `path`, even a
/// symbolic link, the error is `file_exists`. Any thread; waits for the disk.
[[nodiscard]] boost::system::error_code createFileAtomically(const std::string& path,
                                                             std::string_view text);

}  // namespace quillmark
