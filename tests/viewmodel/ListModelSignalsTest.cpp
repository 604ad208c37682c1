// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ListModelTest.h"

namespace quillmark::test {
namespace {

using ListModelSignalsTest = ListModelTest;

TEST_F(ListModelSignalsTest, SignalsNothingWhenTheListStaysEmpty) {
  EXPECT_EQ(signalsBetween("", ""), Signals{});
}

// A long list takes longer to compare than the visible rows take to update.
TEST_F(ListModelSignalsTest, SignalsAllRowsWithoutComparingThem) {
  EXPECT_EQ(signalsBetween("abc", "abc"), (Signals{"change 0-2"}));
  EXPECT_EQ(signalsBetween("abcde", "abxde"), (Signals{"change 0-4"}));
}

TEST_F(ListModelSignalsTest, InsertsAllRowsIntoAnEmptyList) {
  EXPECT_EQ(signalsBetween("", "abc"), (Signals{"insert 0-2", "count 3"}));
}

TEST_F(ListModelSignalsTest, RemovesAllRows) {
  EXPECT_EQ(signalsBetween("abc", ""), (Signals{"remove 0-2", "count 0"}));
}

TEST_F(ListModelSignalsTest, InsertsAtTheEndOnly) {
  EXPECT_EQ(signalsBetween("abc", "abcde"), (Signals{"insert 3-4", "change 0-2", "count 5"}));
}

TEST_F(ListModelSignalsTest, RemovesAtTheEndOnly) {
  EXPECT_EQ(signalsBetween("abcde", "abc"), (Signals{"remove 3-4", "change 0-2", "count 3"}));
}

// Rows have no identity: a new first row changes all rows and adds one at the end.
TEST_F(ListModelSignalsTest, AddsAtTheEndWhenTheFirstRowIsNew) {
  EXPECT_EQ(signalsBetween("abc", "xabc"), (Signals{"insert 3-3", "change 0-2", "count 4"}));
  EXPECT_EQ(shownBy(model_), "xabc");
}

TEST_F(ListModelSignalsTest, RemovesAtTheEndWhenTheFirstRowIsRemoved) {
  EXPECT_EQ(signalsBetween("abc", "bc"), (Signals{"remove 2-2", "change 0-1", "count 2"}));
  EXPECT_EQ(shownBy(model_), "bc");
}

}  // namespace
}  // namespace quillmark::test
