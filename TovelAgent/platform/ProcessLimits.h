// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/resource.h>

namespace quillmark {

/// Disables core dumps, to a file or to a crash reporter, because a dump would contain
/// the access token and the API key that is being typed. Sets only the soft limit, so
/// that programs that this one starts may raise it again. Any thread.
void disableCoreDumps();

/// Makes a write beyond the user's limit on file sizes fail with an error. By default such
/// a write ends the program. Any thread.
void failWritesBeyondFileSizeLimit();

/// Raises the number of files and sockets that this process may have open to the
/// maximum that the system allows. Call before threads start.
void raiseDescriptorLimit();

/// Whether enough descriptors are still free for files and windows, now that the socket
/// `descriptor` is open. If not, close the socket: an agent that does not answer could
/// otherwise use up all descriptors. Any thread.
[[nodiscard]] bool leavesEnoughDescriptors(int descriptor);

/// While it exists, the limit of descriptors is again what it was before
/// `raiseDescriptorLimit`. Create it to start a child, which inherits the limit: programs
/// that use `select()` may fail with a higher one. The limit is that of the whole process,
/// so other threads may fail to open files meanwhile, and a second instance waits for the
/// first. Any thread.
class InitialDescriptorLimit final {
 public:
  InitialDescriptorLimit();
  ~InitialDescriptorLimit();
  InitialDescriptorLimit(const InitialDescriptorLimit&) = delete;
  InitialDescriptorLimit& operator=(const InitialDescriptorLimit&) = delete;

 private:
  rlimit current_{};
};

}  // namespace quillmark
