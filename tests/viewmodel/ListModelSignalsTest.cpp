// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSignalSpy>

#include "viewmodel/ListModelTest.h"

namespace quillmark::test {
namespace {

using ListModelSignalsTest = ListModelTest;

TEST_F(ListModelSignalsTest, TellsNothingWhenNothingChanged) {
  EXPECT_EQ(toldBetween("abc", "abc"), Told{});
  EXPECT_EQ(toldBetween("", ""), Told{});
}

TEST_F(ListModelSignalsTest, InsertsAllRowsIntoAnEmptyList) {
  EXPECT_EQ(toldBetween("", "abc"), (Told{"insert 0-2", "count 3"}));
}

TEST_F(ListModelSignalsTest, RemovesAllRows) {
  EXPECT_EQ(toldBetween("abc", ""), (Told{"remove 0-2", "count 0"}));
}

TEST_F(ListModelSignalsTest, InsertsAtTheEndOnly) {
  EXPECT_EQ(toldBetween("abc", "abcde"), (Told{"insert 3-4", "count 5"}));
}

TEST_F(ListModelSignalsTest, RemovesAtTheEndOnly) {
  EXPECT_EQ(toldBetween("abcde", "abc"), (Told{"remove 3-4", "count 3"}));
}

// No row has an identity: a new first row changes all, and adds one at the end.
TEST_F(ListModelSignalsTest, ComparesByPositionWhenARowComesFirst) {
  EXPECT_EQ(toldBetween("abc", "xabc"), (Told{"insert 3-3", "change 0-2", "count 4"}));
  EXPECT_EQ(shownBy(model_), "xabc");
}

TEST_F(ListModelSignalsTest, ComparesByPositionWhenTheFirstRowGoes) {
  EXPECT_EQ(toldBetween("abc", "bc"), (Told{"remove 2-2", "change 0-1", "count 2"}));
  EXPECT_EQ(shownBy(model_), "bc");
}

TEST_F(ListModelSignalsTest, NamesExactlyTheRowsThatChanged) {
  EXPECT_EQ(toldBetween("abcde", "xbcde"), (Told{"change 0-0"}));
  EXPECT_EQ(toldBetween("abcde", "abcdx"), (Told{"change 4-4"}));
  EXPECT_EQ(toldBetween("abcde", "abxde"), (Told{"change 2-2"}));
  EXPECT_EQ(toldBetween("abcde", "axcye"), (Told{"change 1-3"}));
  EXPECT_EQ(toldBetween("abcde", "vwxyz"), (Told{"change 0-4"}));
}

TEST_F(ListModelSignalsTest, NamesChangedRowsAndTheDifferenceInNumber) {
  EXPECT_EQ(toldBetween("abc", "axcde"), (Told{"insert 3-4", "change 1-1", "count 5"}));
  EXPECT_EQ(toldBetween("abcde", "axc"), (Told{"remove 3-4", "change 1-1", "count 3"}));
}

TEST_F(ListModelSignalsTest, SeesAChangeInAnyFieldOfARow) {
  std::vector<InstalledApp> rows{{"a", {}, {}, {}}};
  model_.show(std::make_shared<const std::vector<InstalledApp>>(rows));
  const QSignalSpy changes(&model_, &Model::dataChanged);
  rows[0].version = "";
  model_.show(std::make_shared<const std::vector<InstalledApp>>(rows));
  EXPECT_EQ(changes.count(), 1);
}

// Rows in view are shown anew sooner than all are compared.
TEST_F(ListModelSignalsTest, LooksIntoNoListOfManyThousands) {
  const std::string many(2'000, 'a');
  EXPECT_EQ(toldBetween(many, many), Told{});
  EXPECT_EQ(toldBetween(many + "a", many + "a"), (Told{"change 0-2000"}));
  EXPECT_EQ(toldBetween(many + "abc", many + "ab"),
            (Told{"remove 2002-2002", "change 0-2001", "count 2002"}));
}

}  // namespace
}  // namespace quillmark::test
