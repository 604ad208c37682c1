// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/Turns.h"

#include <chrono>
#include <thread>

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

TEST(Turns, AreOneAtATime) {
  Turns turns;
  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.waits());
  EXPECT_FALSE(turns.take());
  EXPECT_TRUE(turns.waits());
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.take());
}

TEST(Turns, PauseAfterWhatTheyTake) {
  Turns turns;
  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.take());
  std::this_thread::sleep_for(100ms);  // as the window would be blocked
  const auto end = std::chrono::steady_clock::now();
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_GT(std::chrono::steady_clock::now() - end, 20ms);
}

TEST(Turns, EaseOnlyWhatWaits) {
  Turns turns;
  const QSignalSpy eased(&turns, &Turns::eased);
  EXPECT_TRUE(turns.take());
  auto isOver = false;
  QTimer::singleShot(100ms, [&] { isOver = true; });
  EXPECT_TRUE(waitUntil([&] { return isOver; }));
  EXPECT_TRUE(eased.isEmpty());

  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.take());
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_EQ(eased.count(), 1);
}

}  // namespace
}  // namespace quillmark::test
