// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <boost/asio/any_io_executor.hpp>
#include <boost/asio/thread_pool.hpp>

namespace quillmark {

/// The process's general-purpose executor, on which all network work runs. It has only
/// one thread, because `exchange` needs an executor that runs one handler at a time. One
/// is enough: a task that waits does not occupy it, and no task blocks it.
///
/// Only one instance exists at a time: the entry point creates it before the panel, and
/// destroys it when the event loop has ended. The destructor waits for the handlers
/// that are running and drops every waiting task.
class TaskExecutor final {
 public:
  TaskExecutor();
  ~TaskExecutor();
  TaskExecutor(const TaskExecutor&) = delete;
  TaskExecutor& operator=(const TaskExecutor&) = delete;

  /// Whether the instance exists. Any thread.
  [[nodiscard]] static bool exists();

  /// The executor of the instance, which must exist. Any thread.
  [[nodiscard]] static boost::asio::any_io_executor current();

 private:
  boost::asio::thread_pool pool_;
};

}  // namespace quillmark
