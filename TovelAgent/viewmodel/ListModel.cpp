// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ListModel.h"

namespace quillmark {

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QHash<int, QByteArray> ListModel::roleNames() const { return {{presentationRole, roleName_}}; }

void ListModel::presentAgain() {
  if (count_ > 0) {
    Q_EMIT dataChanged(index(0), index(count_ - 1));
  }
}

}  // namespace quillmark
