// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/SnapshotListModel.h"

#include <QPersistentModelIndex>

#include "viewmodel/ListModelTest.h"

namespace quillmark::test {
namespace {

using SnapshotListModelTest = ListModelTest;

TEST_F(SnapshotListModelTest, HasNoRowsAtFirst) {
  EXPECT_EQ(model_.count(), 0);
  EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(SnapshotListModelTest, ShowsRowsInOrder) {
  model_.show(rowsOf("hello"));
  EXPECT_EQ(shownBy(model_), "hello");
  EXPECT_EQ(model_.count(), 5);
}

TEST_F(SnapshotListModelTest, HasOneRoleOfTheGivenName) {
  EXPECT_EQ(model_.roleNames().values(), QList<QByteArray>{"app"});
}

TEST_F(SnapshotListModelTest, HasNothingForOtherRolesAndRows) {
  model_.show(rowsOf("ab"));
  EXPECT_FALSE(model_.data(model_.index(0), Qt::DisplayRole).isValid());
  EXPECT_FALSE(model_.index(2).isValid());
  EXPECT_EQ(model_.rowCount(model_.index(0)), 0);
}

TEST_F(SnapshotListModelTest, KeepsIndicesOfRowsThatStay) {
  model_.show(rowsOf("abc"));
  const QPersistentModelIndex second(model_.index(1));
  model_.show(rowsOf("xyzuvw"));
  EXPECT_TRUE(second.isValid());
  EXPECT_EQ(second.row(), 1);
  model_.show(rowsOf("a"));
  EXPECT_FALSE(second.isValid());
}

class CappedListModelTest : public ListModelTest {
 protected:
  CappedListModelTest() : ListModelTest(3) {}
};

TEST_F(CappedListModelTest, ShowsTheFirstRowsOnly) {
  model_.show(rowsOf("abcde"));
  EXPECT_EQ(shownBy(model_), "abc");
  EXPECT_EQ(model_.count(), 3);
}

TEST_F(CappedListModelTest, SignalsOnlyRowsUpToTheCap) {
  EXPECT_EQ(signalsBetween("abcde", "abcxyz"), (Signals{"change 0-2"}));
  EXPECT_EQ(signalsBetween("abc", "abcd"), (Signals{"change 0-2"}));
  EXPECT_EQ(signalsBetween("abcd", "abc"), (Signals{"change 0-2"}));
}

TEST_F(CappedListModelTest, GrowsAndShrinksAtTheCap) {
  EXPECT_EQ(signalsBetween("ab", "abcde"), (Signals{"insert 2-2", "change 0-1", "count 3"}));
  EXPECT_EQ(signalsBetween("abcde", "ab"), (Signals{"remove 2-2", "change 0-1", "count 2"}));
}

}  // namespace
}  // namespace quillmark::test
