// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <future>
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/use_future.hpp>

#include "client/TaskExecutor.h"

namespace quillmark::test {

/// Starts an operation on the executor, which must exist.
template <class T>
[[nodiscard]] std::future<T> started(boost::asio::awaitable<T> operation) {
  return boost::asio::co_spawn(TaskExecutor::current(), std::move(operation),
                               boost::asio::use_future);
}

/// Runs an operation to its end.
template <class T>
[[nodiscard]] T completed(boost::asio::awaitable<T> operation) {
  return started(std::move(operation)).get();
}

}  // namespace quillmark::test
