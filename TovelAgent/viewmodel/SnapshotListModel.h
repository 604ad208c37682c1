// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cstddef>
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

  /// Replaces the old rows with `rows`. Views read all rows again: a hostile list can take
  /// longer to compare with the old one than the visible rows take to update.
  void show(Rows rows) {
    const int before = count();
    const int after = static_cast<int>(std::min(rows->size(), maxRows_));
    replaceRows(after, [&] { rows_ = std::move(rows); });
    if (const int common = std::min(before, after); common > 0) {
      Q_EMIT dataChanged(index(0), index(common - 1));
    }
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

  Rows rows_ = emptyList<Row>();
  const std::size_t maxRows_;
};

}  // namespace quillmark
