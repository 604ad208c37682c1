// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessLimits.h"

#include <csignal>
#include <mutex>
#include <optional>

#include "platform/OperatingSystem.h"

namespace quillmark {
namespace {

std::optional<rlim_t> initialDescriptorLimit;
// Locked while the limit is lowered. Otherwise a second thread that starts a child would
// read the lowered limit and restore that one at the end.
std::mutex loweredLimitMutex;

rlimit limitOf(int resource) {
  rlimit limit{};
  getrlimit(resource, &limit);
  return limit;
}

/// False if the system does not allow it.
bool setSoftLimit(int resource, rlimit limit, rlim_t soft) {
  limit.rlim_cur = soft;
  return setrlimit(resource, &limit) == 0;
}

}  // namespace

void disableCoreDumps() {
  // Linux passes a dump to a crash reporter even if the limit is 0, but not if it is 1. A
  // dump to a file does not fit into one byte.
  if (!setSoftLimit(RLIMIT_CORE, limitOf(RLIMIT_CORE), 1)) {
    makeUndumpable();
  }
}

void failWritesBeyondFileSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

void raiseDescriptorLimit() {
  const auto limit = limitOf(RLIMIT_NOFILE);
  initialDescriptorLimit = limit.rlim_cur;
  setSoftLimit(RLIMIT_NOFILE, limit, limit.rlim_max);
}

bool leavesEnoughDescriptors(int descriptor) {
  // More than enough: saving a file takes three at most, enlarging a window one.
  constexpr rlim_t reserved = 16;
  // The system gives out the lowest free number, so all below `descriptor` are in use.
  return static_cast<rlim_t>(descriptor) + reserved < limitOf(RLIMIT_NOFILE).rlim_cur;
}

InitialDescriptorLimit::InitialDescriptorLimit() {
  loweredLimitMutex.lock();
  current_ = limitOf(RLIMIT_NOFILE);
  setSoftLimit(RLIMIT_NOFILE, current_, initialDescriptorLimit.value_or(current_.rlim_cur));
}

InitialDescriptorLimit::~InitialDescriptorLimit() {
  setSoftLimit(RLIMIT_NOFILE, current_, current_.rlim_cur);
  loweredLimitMutex.unlock();
}

}  // namespace quillmark
