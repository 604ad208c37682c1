// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessLimits.h"

#include <mutex>
#include <optional>

namespace quillmark {
namespace {

std::optional<rlim_t> initialDescriptors;
std::mutex descriptorLimit;  // locked while a child is started

rlimit limitOf(int resource) {
  rlimit limit{};
  getrlimit(resource, &limit);
  return limit;
}

void setSoftLimit(int resource, rlimit limit, rlim_t soft) {
  limit.rlim_cur = soft;
  setrlimit(resource, &limit);
}

}  // namespace

void disableCoreDumps() { setSoftLimit(RLIMIT_CORE, limitOf(RLIMIT_CORE), 0); }

void raiseDescriptorLimit() {
  const auto limit = limitOf(RLIMIT_NOFILE);
  initialDescriptors = limit.rlim_cur;
  setSoftLimit(RLIMIT_NOFILE, limit, limit.rlim_max);
}

bool leavesDescriptors(int descriptor) {
  // Saving a file needs three at most, a larger window one.
  constexpr rlim_t kept = 16;
  // The system always gives the lowest free descriptor.
  return static_cast<rlim_t>(descriptor) + kept < limitOf(RLIMIT_NOFILE).rlim_cur;
}

InitialDescriptorLimit::InitialDescriptorLimit() {
  descriptorLimit.lock();
  current_ = limitOf(RLIMIT_NOFILE);
  setSoftLimit(RLIMIT_NOFILE, current_, initialDescriptors.value_or(current_.rlim_cur));
}

InitialDescriptorLimit::~InitialDescriptorLimit() {
  setSoftLimit(RLIMIT_NOFILE, current_, current_.rlim_cur);
  descriptorLimit.unlock();
}

}  // namespace quillmark
