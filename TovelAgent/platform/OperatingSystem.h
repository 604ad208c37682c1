// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <string>

#include <spawn.h>
#include <sys/types.h>

namespace quillmark {

// To support another operating system, replace these functions' source file. Any
// thread, except `returnLargeBlocksOnFree`.

/// The absolute path of the running program, with symbolic links resolved. Empty
/// when the system does not report it.
[[nodiscard]] std::string programPath();

/// Adds to `actions` what makes a child inherit only the standard streams and no
/// other descriptor of this process.
void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions);

/// Waits for `child` to end, at most for `limit`. False if it is still running then. True
/// at once if the child cannot be watched, for example because no descriptor is free. Does
/// not collect the exit status.
[[nodiscard]] bool endsWithin(pid_t child, std::chrono::milliseconds limit);

/// Makes the system write no core dump of this process whatever the limits are. Also
/// hides the process from the user's debuggers and from desktop portals.
void makeUndumpable();

/// Makes the allocator return blocks of 1 MiB or more to the system as soon as they
/// are freed. Call before threads start.
void returnLargeBlocksOnFree();

}  // namespace quillmark
