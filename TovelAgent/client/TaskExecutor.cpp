// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/TaskExecutor.h"

#include <atomic>
#include <cassert>
#include <cstddef>

namespace quillmark {
namespace {

// A waiting task uses no thread, so two threads are enough: while one decodes a
// large body, the other runs all other tasks.
constexpr std::size_t threadCount = 2;

std::atomic<boost::asio::thread_pool*> currentPool = nullptr;

}  // namespace

TaskExecutor::TaskExecutor() : pool_(threadCount) {
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
