// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/TaskExecutor.h"

#include <atomic>
#include <future>
#include <thread>

#include <gtest/gtest.h>
#include <boost/asio/post.hpp>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

namespace asio = boost::asio;

TEST(TaskExecutor, RunsTasksOnAThreadOfItsOwn) {
  const TaskExecutor executor;
  std::promise<std::thread::id> ran;
  asio::post(TaskExecutor::current(), [&] { ran.set_value(std::this_thread::get_id()); });
  EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

// What reads a connection relies on it: the time limit may close it at any time.
TEST(TaskExecutor, RunsOneTaskAtATime) {
  const TaskExecutor executor;
  std::promise<std::thread::id> first;
  std::promise<std::thread::id> second;
  asio::post(TaskExecutor::current(), [&] { first.set_value(std::this_thread::get_id()); });
  asio::post(TaskExecutor::current(), [&] { second.set_value(std::this_thread::get_id()); });
  EXPECT_EQ(first.get_future().get(), second.get_future().get());
}

TEST(TaskExecutor, ExistsUntilItIsDestroyed) {
  EXPECT_FALSE(TaskExecutor::exists());
  {
    const TaskExecutor executor;
    EXPECT_TRUE(TaskExecutor::exists());
  }
  EXPECT_FALSE(TaskExecutor::exists());
}

TEST(TaskExecutor, WaitsAtItsEndForWhatIsRunning) {
  std::promise<void> begun;
  std::promise<void> mayEnd;
  std::atomic<bool> ended = false;
  std::thread helper;
  {
    const TaskExecutor executor;
    asio::post(TaskExecutor::current(), [&] {
      begun.set_value();
      mayEnd.get_future().wait();
      ended = true;
    });
    begun.get_future().wait();
    helper = std::thread([&] { mayEnd.set_value(); });
  }
  EXPECT_TRUE(ended);
  helper.join();
}

TEST(TaskExecutor, DropsAtItsEndWhatIsWaiting) {
  const Backend silent(
      [](const ReceivedRequest&, Connection& connection) { connection.staySilent(); }, 0);
  std::future<Body> waiting;
  {
    const TaskExecutor executor;
    waiting = startExchange(requestTo(silent.port()));
    while (silent.requests().empty()) {
      std::this_thread::yield();
    }
  }
  EXPECT_THROW(waiting.get(), std::future_error);
}

TEST(TaskExecutor, MayBeFollowedByAnother) {
  for (int i = 0; i < 3; ++i) {
    const TaskExecutor executor;
    EXPECT_EQ(exchangeFor(okAnswer("body")), "body");
  }
}

}  // namespace
}  // namespace quillmark::test
