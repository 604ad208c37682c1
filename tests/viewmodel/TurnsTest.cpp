// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/Turns.h"

#include <chrono>

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

TEST(Turns, AreTwoAtOnce) {
  Turns turns;
  EXPECT_TRUE(turns.take());
  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.waits());
  EXPECT_FALSE(turns.take());
  EXPECT_TRUE(turns.waits());
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_TRUE(turns.take());
  EXPECT_TRUE(turns.take());
  EXPECT_FALSE(turns.take());
}

TEST(Turns, EaseOnlyWhatWaits) {
  Turns turns;
  const QSignalSpy eased(&turns, &Turns::eased);
  EXPECT_TRUE(turns.take());
  auto isOver = false;
  QTimer::singleShot(100ms, [&] { isOver = true; });
  EXPECT_TRUE(waitUntil([&] { return isOver; }));
  EXPECT_TRUE(eased.isEmpty());

  EXPECT_TRUE(turns.take() && turns.take());
  EXPECT_FALSE(turns.take());
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_EQ(eased.count(), 1);
}

}  // namespace
}  // namespace quillmark::test
