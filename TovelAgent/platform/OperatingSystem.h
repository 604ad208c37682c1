// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <spawn.h>

namespace quillmark {

// What every system calls differently; one source file for each. Any thread.

/// The running program's file, absolute, links resolved. Empty when the system
/// does not tell.
[[nodiscard]] std::string programPath();

/// Lets two files of one file system change places at once; false with `errno`
/// set, EINVAL where the file system cannot.
[[nodiscard]] bool exchangeFiles(const char* one, const char* other);

/// How a child inherits none of this process's descriptors but the standard
/// streams. Adds to both what is needed.
void inheritStandardStreamsOnly(posix_spawn_file_actions_t& actions, short& flags);

/// Has large blocks of memory go back to the system as soon as they are freed,
/// whatever was allocated and freed before.
void returnLargeBlocks();

}  // namespace quillmark
