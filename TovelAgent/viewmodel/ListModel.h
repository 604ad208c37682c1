// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

#include <QAbstractListModel>
#include <QByteArray>
#include <QQmlEngine>

namespace quillmark {

/// What all lists that views show have in common: one role, whose value is a
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

 Q_SIGNALS:
  void countChanged();

 protected:
  /// `roleName` is the property that delegates require.
  explicit ListModel(QByteArray roleName) : roleName_(std::move(roleName)) {}

  static constexpr int presentationRole = Qt::UserRole;

  /// Calls `exchange`, which puts the new rows in place of the old ones, inside
  /// the announcement that their number becomes `count`. No row has an
  /// identity: the difference comes or goes at the end, and so a view keeps its
  /// scroll position.
  template <class Exchange>
  void resize(int count, Exchange exchange) {
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
