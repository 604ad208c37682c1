// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "viewmodel/ListModel.h"
#include "viewmodel/Snapshot.h"

namespace quillmark {

/// A list whose rows are replaced as a whole after each poll. The function
/// `present(const Row&)` next to the presentation's type converts a row to what the view
/// shows; it runs only for the rows on screen. UI thread only.
template <class Row>
class SnapshotListModel final : public ListModel {
 public:
  using Rows = Snapshot<std::vector<Row>>;

  /// Shows at most the first `maxRows` rows.
  explicit SnapshotListModel(QByteArray roleName, std::size_t maxRows = unlimited)
      : ListModel(std::move(roleName)), maxRows_(maxRows) {}

  /// Replaces the old rows with `rows` and notifies views of the differences.
  void show(Rows rows) {
    const int before = count();
    const int after = static_cast<int>(std::min(rows->size(), maxRows_));
    replaceRows(after, [&] { std::swap(rows_, rows); });
    // `rows` now holds the old rows.
    signalChanges(*rows, std::min(before, after));
    if (after != before) {
      Q_EMIT countChanged();
    }
  }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != presentationRole) {
      return {};
    }
    return QVariant::fromValue(present((*rows_)[static_cast<std::size_t>(index.row())]));
  }

 private:
  // Qt models count rows with `int`.
  static constexpr std::size_t unlimited{std::numeric_limits<int>::max()};

  // Comparing more rows than this takes longer than updating all visible rows.
  static constexpr int maxComparedRows = 2'000;

  /// Signals the range of changed rows among the first `common`, or all of these if there
  /// are too many to compare. When all rows differ, both searches stop at their first
  /// comparison.
  void signalChanges(const std::vector<Row>& old, int common) {
    if (common > maxComparedRows) {
      Q_EMIT dataChanged(index(0), index(common - 1));
      return;
    }
    const auto oldEnd = old.begin() + common;
    const auto first = std::mismatch(old.begin(), oldEnd, rows_->begin()).first;
    if (first == oldEnd) {
      return;
    }
    const auto reversed = [](auto position) { return std::make_reverse_iterator(position); };
    const auto lastChanged =
        std::mismatch(reversed(oldEnd), reversed(first), reversed(rows_->begin() + common)).first;
    const auto last = lastChanged.base() - 1;
    Q_EMIT dataChanged(index(static_cast<int>(first - old.begin())),
                       index(static_cast<int>(last - old.begin())));
  }

  Rows rows_ = emptyList<Row>();
  const std::size_t maxRows_;
};

}  // namespace quillmark
