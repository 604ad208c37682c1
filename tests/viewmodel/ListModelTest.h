// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include "viewmodel/AppPresentation.h"
#include "viewmodel/SnapshotListModel.h"

namespace quillmark::test {

using Model = SnapshotListModel<InstalledApp>;
using Signals = std::vector<std::string>;

/// One row for each letter, named by it.
[[nodiscard]] inline Model::Rows rowsOf(const std::string& letters) {
  std::vector<InstalledApp> rows;
  for (const char letter : letters) {
    rows.push_back({std::string(1, letter), {}, {}, {}});
  }
  return std::make_shared<const std::vector<InstalledApp>>(std::move(rows));
}

/// The letters of all rows, as a view gets them.
[[nodiscard]] inline std::string shownBy(const Model& model) {
  std::string letters;
  const int role = model.roleNames().key("app");
  for (int row = 0; row < model.rowCount(); ++row) {
    const auto value = model.data(model.index(row), role).value<AppPresentation>();
    letters += value.name.toStdString();
  }
  return letters;
}

/// Records the signals of `model_` in short form: "insert 1-2", "remove 0-0",
/// "change 3-4", "count 5".
class ListModelTest : public testing::Test {
 protected:
  explicit ListModelTest(std::size_t maxRows = 10'000) : model_("app", maxRows) {
    note(&Model::rowsAboutToBeInserted, &Model::rowsInserted, "insert");
    note(&Model::rowsAboutToBeRemoved, &Model::rowsRemoved, "remove");
    QObject::connect(&model_, &Model::dataChanged, &model_,
                     [this](const QModelIndex& first, const QModelIndex& last) {
                       signals_.push_back("change " + span(first.row(), last.row()));
                     });
    QObject::connect(&model_, &Model::countChanged, &model_,
                     [this] { signals_.push_back("count " + std::to_string(model_.count())); });
    QObject::connect(&model_, &Model::modelReset, &model_, [this] { signals_.push_back("reset"); });
    QObject::connect(&model_, &Model::layoutChanged, &model_,
                     [this] { signals_.push_back("layout"); });
  }

  /// The signals of `model_` when it changes from `before` to `after`.
  Signals signalsBetween(const std::string& before, const std::string& after) {
    model_.show(rowsOf(before));
    return signalsWith(rowsOf(after));
  }

  /// The signals of `model_` when it changes to these rows.
  Signals signalsWith(Model::Rows rows) {
    signals_.clear();
    model_.show(std::move(rows));
    return signals_;
  }

  Model model_;

 private:
  static std::string span(int first, int last) {
    return std::to_string(first) + "-" + std::to_string(last);
  }

  template <class Before, class After>
  void note(Before before, After after, const std::string& what) {
    QObject::connect(&model_, before, &model_,
                     [this](const QModelIndex&, int, int) { rowsBefore_ = model_.rowCount(); });
    QObject::connect(&model_, after, &model_,
                     [this, what](const QModelIndex&, int first, int last) {
                       EXPECT_NE(model_.rowCount(), rowsBefore_);
                       signals_.push_back(what + " " + span(first, last));
                     });
  }

  // Checks that the model follows the rules of all Qt models; a violation is a warning.
  QAbstractItemModelTester tester_{&model_,
                                   QAbstractItemModelTester::FailureReportingMode::Warning};
  Signals signals_;
  int rowsBefore_ = 0;
};

}  // namespace quillmark::test
