// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/LongTexts.h"

#include <string>

#include <QCoreApplication>

#include <gtest/gtest.h>

#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

TEST(LongTexts, AreLeftInTurns) {
  Turns turns;
  LongTexts texts(turns);
  EXPECT_TRUE(texts.mayShow("one"));
  EXPECT_FALSE(texts.mayShow("two"));
  EXPECT_TRUE(waitUntil([&] { return !turns.waits(); }));
  EXPECT_TRUE(texts.mayShow("two"));
}

TEST(LongTexts, TakeATurnForEachRow) {
  Turns turns;
  LongTexts texts(turns);
  EXPECT_TRUE(texts.mayShow("text"));
  EXPECT_FALSE(texts.mayShow("text"));
}

TEST(LongTexts, NeedNoTurnTwice) {
  Turns turns;
  LongTexts texts(turns);
  for (int poll = 0; poll < 3; ++poll) {
    EXPECT_TRUE(texts.mayShow("text"));
    QCoreApplication::processEvents();
  }
  EXPECT_FALSE(turns.waits());
}

}  // namespace
}  // namespace quillmark::test
