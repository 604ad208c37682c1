// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// Makes the folder `path` with all folders above it; those it makes are for
/// the user alone (mode 0700). One that is there already is fine. Any thread.
[[nodiscard]] boost::system::error_code createPrivateFolders(const std::string& path);

/// Puts `text` in place of the file at `path`, or makes it, so that whoever
/// looks finds the old file or the new one, whole, even after a loss of power.
///
/// The file is for the user alone: 0600, or what stricter mode it had. A
/// symbolic link to a regular file is followed. On an error the old file is as
/// it was and nothing else stays behind; on a file system that cannot exchange
/// two files there is no going back, so a folder that could not be flushed is no
/// error there. Any thread; waits for the disk.
[[nodiscard]] boost::system::error_code writeFileAtomically(const std::string& path,
                                                            std::string_view text);

}  // namespace quillmark
