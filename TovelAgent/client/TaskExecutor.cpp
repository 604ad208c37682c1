// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/TaskExecutor.h"

#include <atomic>
#include <cassert>

namespace quillmark {
namespace {

std::atomic<boost::asio::thread_pool*> currentPool = nullptr;

}  // namespace

TaskExecutor::TaskExecutor() : pool_(1) {
  [[maybe_unused]] auto* const previous = currentPool.exchange(&pool_);
  assert(previous == nullptr);
}

TaskExecutor::~TaskExecutor() {
  pool_.stop();
  pool_.join();
  currentPool = nullptr;
}

bool TaskExecutor::exists() { return currentPool.load() != nullptr; }

boost::asio::any_io_executor TaskExecutor::current() { return currentPool.load()->get_executor(); }

}  // namespace quillmark
