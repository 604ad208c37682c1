// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSignalSpy>

#include "viewmodel/ListModelTest.h"

namespace quillmark::test {
namespace {

using ListModelSignalsTest = ListModelTest;

TEST_F(ListModelSignalsTest, SignalsNothingWhenNothingChanged) {
  EXPECT_EQ(signalsBetween("abc", "abc"), Signals{});
  EXPECT_EQ(signalsBetween("", ""), Signals{});
}

TEST_F(ListModelSignalsTest, InsertsAllRowsIntoAnEmptyList) {
  EXPECT_EQ(signalsBetween("", "abc"), (Signals{"insert 0-2", "count 3"}));
}

TEST_F(ListModelSignalsTest, RemovesAllRows) {
  EXPECT_EQ(signalsBetween("abc", ""), (Signals{"remove 0-2", "count 0"}));
}

TEST_F(ListModelSignalsTest, InsertsAtTheEndOnly) {
  EXPECT_EQ(signalsBetween("abc", "abcde"), (Signals{"insert 3-4", "count 5"}));
}

TEST_F(ListModelSignalsTest, RemovesAtTheEndOnly) {
  EXPECT_EQ(signalsBetween("abcde", "abc"), (Signals{"remove 3-4", "count 3"}));
}

// Rows have no identity: a new first row changes all rows and adds one at the end.
TEST_F(ListModelSignalsTest, ComparesByPositionWhenTheFirstRowIsNew) {
  EXPECT_EQ(signalsBetween("abc", "xabc"), (Signals{"insert 3-3", "change 0-2", "count 4"}));
  EXPECT_EQ(shownBy(model_), "xabc");
}

TEST_F(ListModelSignalsTest, ComparesByPositionWhenTheFirstRowIsRemoved) {
  EXPECT_EQ(signalsBetween("abc", "bc"), (Signals{"remove 2-2", "change 0-1", "count 2"}));
  EXPECT_EQ(shownBy(model_), "bc");
}

TEST_F(ListModelSignalsTest, NamesExactlyTheRowsThatChanged) {
  EXPECT_EQ(signalsBetween("abcde", "xbcde"), (Signals{"change 0-0"}));
  EXPECT_EQ(signalsBetween("abcde", "abcdx"), (Signals{"change 4-4"}));
  EXPECT_EQ(signalsBetween("abcde", "abxde"), (Signals{"change 2-2"}));
  EXPECT_EQ(signalsBetween("abcde", "axcye"), (Signals{"change 1-3"}));
  EXPECT_EQ(signalsBetween("abcde", "vwxyz"), (Signals{"change 0-4"}));
}

TEST_F(ListModelSignalsTest, NamesChangedRowsAndTheDifferenceInNumber) {
  EXPECT_EQ(signalsBetween("abc", "axcde"), (Signals{"insert 3-4", "change 1-1", "count 5"}));
  EXPECT_EQ(signalsBetween("abcde", "axc"), (Signals{"remove 3-4", "change 1-1", "count 3"}));
}

TEST_F(ListModelSignalsTest, DetectsAChangeInAnyFieldOfARow) {
  std::vector<InstalledApp> rows{{"a", {}, {}, {}}};
  model_.show(std::make_shared<const std::vector<InstalledApp>>(rows));
  const QSignalSpy changes(&model_, &Model::dataChanged);
  rows[0].version = "";
  model_.show(std::make_shared<const std::vector<InstalledApp>>(rows));
  EXPECT_EQ(changes.count(), 1);
}

// Updating the visible rows is faster than comparing all rows.
TEST_F(ListModelSignalsTest, DoesNotCompareListsOfThousands) {
  const std::string many(2'000, 'a');
  EXPECT_EQ(signalsBetween(many, many), Signals{});
  EXPECT_EQ(signalsBetween(many + "a", many + "a"), (Signals{"change 0-2000"}));
  EXPECT_EQ(signalsBetween(many + "abc", many + "ab"),
            (Signals{"remove 2002-2002", "change 0-2001", "count 2002"}));
}

}  // namespace
}  // namespace quillmark::test
