// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

#include <QAbstractListModel>
#include <QByteArray>
#include <QQmlEngine>

namespace quillmark {

/// The base of all list models that views show: one role, whose value is a
/// presentation with everything a row needs, and the number of rows.
/// UI thread only.
class ListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Makes views read all rows again.
  void presentAgain();

 Q_SIGNALS:
  void countChanged();

 protected:
  /// `roleName` is the property that delegates require.
  explicit ListModel(QByteArray roleName) : roleName_(std::move(roleName)) {}

  static constexpr int presentationRole = Qt::UserRole;

  /// Calls `exchange`, which replaces the old rows with the new ones, between the
  /// begin and end signals of a change to `count` rows. Rows have no identity, so
  /// they are always inserted or removed at the end; a view then keeps its scroll
  /// position.
  template <class Exchange>
  void replaceRows(int count, Exchange exchange) {
    const int before = count_;
    if (count < before) {
      beginRemoveRows({}, count, before - 1);
    } else if (count > before) {
      beginInsertRows({}, before, count - 1);
    }
    exchange();
    count_ = count;
    if (count < before) {
      endRemoveRows();
    } else if (count > before) {
      endInsertRows();
    }
  }

 private:
  const QByteArray roleName_;
  int count_ = 0;
};

}  // namespace quillmark
