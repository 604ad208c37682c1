// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/resource.h>

namespace quillmark {

/// Lets a crash leave no core dump, which would contain the access token and the API
/// key that is being typed. Sets only the soft limit, so that programs the panel
/// starts may raise it again. Any thread.
void disableCoreDumps();

/// Lets this process open as many files and sockets as the system allows it. Call
/// before threads start.
void raiseDescriptorLimit();

/// Whether, besides `descriptor`, which was just opened, enough of them are left for
/// files and windows. An agent that keeps requests waiting must not use them up. Any
/// thread.
[[nodiscard]] bool leavesDescriptors(int descriptor);

/// While it exists, the limit of descriptors is as before `raiseDescriptorLimit`: a
/// program that is started meanwhile may not expect more. Any thread.
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
