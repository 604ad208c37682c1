// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <spawn.h>

namespace quillmark {

// Functions that differ between operating systems: a port replaces their source
// file. Any thread.

/// The absolute path of the running program, with symbolic links resolved. Empty
/// when the system does not report it.
[[nodiscard]] std::string programPath();

/// Adds to `actions` what makes a child inherit only the standard streams and no
/// other descriptor of this process.
void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions);

/// Makes the allocator return large blocks to the system as soon as they are
/// freed, independent of earlier allocations.
void returnLargeBlocks();

}  // namespace quillmark
